#pragma once

#include <QByteArray>
#include <QString>
#include <ostream>

/// What failed comparisons print of Qt's texts: found by gtest because it stands beside their types.

inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* stream) {
    *stream << '"' << bytes.toStdString() << '"';
}
