#pragma once

#include <QString>
#include <ostream>

/// Texts of these tests are written in UTF-8.
inline QString Text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
