#include "platform/CodePage.h"

#include <algorithm>
#include <array>

namespace {

// The characters of bytes 128 to 159; the unassigned ones stand for themselves.
constexpr std::array<char16_t, 32> UpperControls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr int NoByte = -1;

int ByteOf(char16_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return character;
    }
    for (std::size_t i = 0; i < UpperControls.size(); ++i) {
        if (UpperControls[i] == character) {
            return static_cast<int>(0x80 + i);
        }
    }
    return NoByte;
}

bool StartsPair(QString::const_iterator at, QString::const_iterator end) {
    return at->isHighSurrogate() && at + 1 != end && (at + 1)->isLowSurrogate();
}

using Convert = QString (*)(const QString&);
using ConvertOne = QChar (QChar::*)() const;

QString Recased(const QString& text, ConvertOne convertPlain, Convert convert) {
    QString result = text;
    for (QChar& character : result) {
        if (character.unicode() < 0x80) {
            character = (character.*convertPlain)(); // without a text of its own for each letter
            continue;
        }
        const QString other = convert(QString(character));
        if (other.size() == 1 && (CodePageHas(other[0]) || !CodePageHas(character))) {
            character = other[0];
        }
    }
    return result;
}

} // namespace

QString TextFromBytes(const QByteArray& bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.cbegin(), bytes.cend(), text.begin(), [](char signedByte) {
        const auto byte = static_cast<unsigned char>(signedByte);
        return byte >= 0x80 && byte < 0xA0 ? QChar(UpperControls[byte - 0x80U]) : QChar(char16_t{byte});
    });
    return text;
}

QByteArray BytesFromText(const QString& text) {
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char* end = bytes.data();
    for (auto at = text.cbegin(); at != text.cend(); ++at) {
        const int byte = ByteOf(at->unicode());
        *end++ = byte == NoByte ? '?' : static_cast<char>(byte);
        at += byte == NoByte && StartsPair(at, text.cend()) ? 1 : 0;
    }
    bytes.truncate(end - bytes.data());
    return bytes;
}

bool CodePageHas(QChar character) {
    return ByteOf(character.unicode()) != NoByte;
}

bool CodePageHasAll(const QString& text) {
    for (const QChar character : text) {
        if (!CodePageHas(character)) {
            return false;
        }
    }
    return true;
}

QString OnlyCodePage(const QString& text) {
    return CodePageHasAll(text) ? text : TextFromBytes(BytesFromText(text));
}

QString UpperCase(const QString& text) {
    return Recased(text, &QChar::toUpper, [](const QString& character) { return character.toUpper(); });
}

QString LowerCase(const QString& text) {
    return Recased(text, &QChar::toLower, [](const QString& character) { return character.toLower(); });
}

QString TrimBlanks(const QString& text) {
    qsizetype first = 0;
    qsizetype end = text.size();
    while (first < end && text[first] == u' ') {
        ++first;
    }
    while (end > first && text[end - 1] == u' ') {
        --end;
    }
    return text.mid(first, end - first);
}
