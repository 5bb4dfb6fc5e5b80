#include "options/SchemeFile.h"

namespace {

const QString HeadingComment = QStringLiteral(" <- Heading for General Analysis columns");

bool IsDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

QString WithoutBlanks(const QString& text) {
    QString kept;
    for (const QChar character : text) {
        if (character != u' ' && character != u'\t' && character != u'\n' && character != u'\r') {
            kept += character;
        }
    }
    return kept;
}

bool IsSign(const QString& text, qsizetype at) {
    return at < text.size() && (text[at] == u'+' || text[at] == u'-');
}

qsizetype PassDigits(const QString& text, qsizetype at) {
    while (at < text.size() && IsDigit(text[at])) {
        ++at;
    }
    return at;
}

bool IsValid(const SchemePair& pair) {
    const double value = LeadingNumber(pair.Value);
    return value >= 0 && value <= HighestSchemeValue && pair.Symbol.size() <= LongestSymbol;
}

} // namespace

double LeadingNumber(const QString& text) {
    const QString number = WithoutBlanks(text);
    const qsizetype first = IsSign(number, 0) ? 1 : 0;
    qsizetype end = PassDigits(number, first);
    qsizetype digits = end - first;
    if (end < number.size() && number[end] == u'.') {
        const qsizetype fraction = end + 1;
        end = PassDigits(number, fraction);
        digits += end - fraction;
    }
    if (digits == 0) {
        return 0;
    }
    QString found = number.left(end);
    if (end < number.size() && QStringLiteral("eEdD").contains(number[end])) {
        const qsizetype exponent = end + 1 + (IsSign(number, end + 1) ? 1 : 0);
        const qsizetype after = PassDigits(number, exponent);
        if (after > exponent) {
            found += u'e' + number.mid(end + 1, after - end - 1);
        }
    }
    return found.toDouble(); // infinite when it is beyond the range of numbers
}

SchemeReading ReadSchemeText(const QByteArray& bytes) {
    SchemeReading reading;
    ItemReader reader(bytes);
    reader.ReadText(reading.Read.Heading);
    reader.Skip();
    std::vector<SchemePair>& pairs = reading.Read.Pairs;
    do {
        SchemePair pair;
        if (!reader.ReadText(pair.Symbol) || !reader.ReadText(pair.Value)) {
            reading.Error = reader.Error();
            return reading;
        }
        if (!IsValid(pair)) {
            reading.InvalidData = true;
            return reading;
        }
        pairs.push_back(pair);
    } while (!reader.AtEnd() && pairs.size() <= HighestSchemePosition);
    reading.InvalidData = pairs.size() == 1;
    return reading;
}

QByteArray WriteSchemeText(const Scheme& scheme) {
    ItemWriter writer;
    writer.QuotedLine({scheme.Heading, HeadingComment});
    for (const SchemePair& pair : scheme.Pairs) {
        writer.QuotedLine({pair.Symbol, pair.Value});
    }
    return writer.Bytes();
}
