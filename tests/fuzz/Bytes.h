#pragma once

#include "platform/CodePage.h"

#include <QByteArray>
#include <QString>
#include <string>

/// Between the bytes of the second readings and Qt's types.

inline QByteArray Array(const std::string& bytes) {
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

inline QString Text(const std::string& bytes) {
    return TextFromBytes(Array(bytes));
}

inline std::string Bytes(const QByteArray& array) {
    return array.toStdString();
}

inline std::string Bytes(const QString& text) {
    return BytesFromText(text).toStdString();
}
