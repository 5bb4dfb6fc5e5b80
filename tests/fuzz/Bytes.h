#pragma once

#include "platform/CodePage.h"

#include <QByteArray>
#include <QString>
#include <algorithm>
#include <numeric>
#include <string>
#include <string_view>

/// Between the bytes of the second readings and Qt's types.

inline QByteArray Array(const std::string& bytes) {
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

inline QString Text(const std::string& bytes) {
    return TextFromBytes(Array(bytes));
}

/// Whether the text has these bytes. The targets ask it so often that making one of the other would take most of their
/// time.
inline bool Same(const QString& text, std::string_view bytes) {
    static const QString characters = [] {
        QByteArray all(256, Qt::Uninitialized);
        std::iota(all.begin(), all.end(), '\0');
        return TextFromBytes(all);
    }();
    const QChar* table = characters.constData();
    return std::equal(text.cbegin(), text.cend(), bytes.begin(), bytes.end(), [table](QChar character, char byte) {
        return character == table[static_cast<unsigned char>(byte)];
    });
}

inline bool Same(const QByteArray& array, std::string_view bytes) {
    return std::string_view(array.constData(), static_cast<std::size_t>(array.size())) == bytes;
}

inline std::string Bytes(const QByteArray& array) {
    return array.toStdString();
}

inline std::string Bytes(const QString& text) {
    return BytesFromText(text).toStdString();
}
