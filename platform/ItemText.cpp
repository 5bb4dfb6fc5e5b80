#include "platform/ItemText.h"

#include "platform/CodePage.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

bool IsLineEnd(char byte) {
    return byte == '\r' || byte == '\n';
}

} // namespace

SystemError ParseNumber(const QString& text, std::int16_t& value) {
    const QString number = TrimBlanks(text);
    const bool negative = number.startsWith(u'-');
    qsizetype at = negative || number.startsWith(u'+') ? 1 : 0;
    if (at == number.size()) {
        return MakeError(ErrorNumber::TypeMismatch);
    }
    const int limit = std::numeric_limits<std::int16_t>::max() + (negative ? 1 : 0);
    int magnitude = 0;
    bool fits = true;
    for (; at < number.size(); ++at) {
        const char16_t digit = number[at].unicode();
        if (digit < u'0' || digit > u'9') {
            return MakeError(ErrorNumber::TypeMismatch);
        }
        magnitude = fits ? magnitude * 10 + (digit - u'0') : magnitude;
        fits = fits && magnitude <= limit;
    }
    if (!fits) {
        return MakeError(ErrorNumber::Overflow);
    }
    value = static_cast<std::int16_t>(negative ? -magnitude : magnitude);
    return {};
}

ItemReader::ItemReader(QByteArray bytesToRead) : bytes(std::move(bytesToRead)) {}

bool ItemReader::AtEnd() const {
    return at >= bytes.size() && !itemAfterComma;
}

bool ItemReader::Fail(ErrorNumber number) {
    if (!error) {
        error = {MakeError(number), itemLine};
    }
    return false;
}

bool ItemReader::ReadText(QString& value) {
    QString item;
    if (!ReadItem(item)) {
        return false;
    }
    value = item;
    return true;
}

bool ItemReader::ReadNumber(std::int16_t& value) {
    QString item;
    if (!ReadItem(item)) {
        return false;
    }
    const SystemError failure = ParseNumber(item, value);
    return !failure || Fail(static_cast<ErrorNumber>(failure.Number));
}

bool ItemReader::Skip(int count) {
    QString item;
    bool read = true;
    for (int i = 0; i < count && read; ++i) {
        read = ReadItem(item);
    }
    return read;
}

bool ItemReader::ReadItem(QString& value) {
    if (error) {
        return false;
    }
    itemLine = line;
    if (AtEnd()) {
        return Fail(ErrorNumber::InputPastEnd);
    }
    const auto first = std::find_if(bytes.cbegin() + at, bytes.cend(), [](char byte) { return byte != ' '; });
    qsizetype end = 0;
    if (first != bytes.cend() && *first == '"') {
        end = QuotedItem(first - bytes.cbegin(), value);
        if (end < 0) {
            return Fail(ErrorNumber::PathFileAccess);
        }
    } else {
        end = EndOfField(at);
        value = TextFromBytes(bytes.mid(at, end - at));
    }
    at = end;
    PassSeparator();
    return true;
}

// The text between the quotes; returns where the field ends, or -1 when the line ends before the closing quote.
qsizetype ItemReader::QuotedItem(qsizetype quote, QString& value) {
    const auto start = bytes.cbegin() + quote + 1;
    const auto end = std::find_if(start, bytes.cend(), [](char byte) { return byte == '"' || IsLineEnd(byte); });
    if (end == bytes.cend() || *end != '"') {
        return -1;
    }
    value = TextFromBytes(bytes.mid(quote + 1, end - start));
    return EndOfField(end - bytes.cbegin() + 1);
}

qsizetype ItemReader::EndOfField(qsizetype from) const {
    const auto ends = [](char byte) { return byte == ',' || IsLineEnd(byte); };
    return std::find_if(bytes.cbegin() + from, bytes.cend(), ends) - bytes.cbegin();
}

void ItemReader::PassSeparator() {
    itemAfterComma = at < bytes.size() && bytes[at] == ',';
    if (at >= bytes.size()) {
        return;
    }
    if (!itemAfterComma) {
        ++line;
        const bool pair = bytes[at] == '\r' && at + 1 < bytes.size() && bytes[at + 1] == '\n';
        at += pair ? 1 : 0;
    }
    ++at;
}

void ItemWriter::PlainLine(const QString& text) {
    bytes += BytesFromText(text);
    EndLine();
}

void ItemWriter::PlainNumber(std::int16_t number) {
    bytes += number < 0 ? QByteArray() : QByteArray(" ");
    bytes += QByteArray::number(number) + ' ';
    EndLine();
}

void ItemWriter::QuotedLine(const std::vector<Item>& items) {
    for (std::size_t i = 0; i < items.size(); ++i) {
        bytes += i > 0 ? QByteArray(",") : QByteArray();
        if (const QString* text = std::get_if<QString>(&items[i])) {
            bytes += '"' + BytesFromText(*text) + '"';
        } else {
            bytes += QByteArray::number(std::get<std::int16_t>(items[i]));
        }
    }
    EndLine();
}

void ItemWriter::Separator() {
    QuotedLine({QString()});
}

void ItemWriter::EndLine() {
    bytes += "\r\n";
}
