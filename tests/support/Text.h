#pragma once

// Short ways to write the texts of the tests.

#include "tests/support/PrintText.h"

#include <QString>
#include <QStringList>

inline QString Text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

/// Each byte a character.
inline QString Latin(const char* latin) {
    return QString::fromLatin1(latin);
}

/// A list written with a bar between its parts.
inline QStringList List(const char* separatedByBars) {
    return Text(separatedByBars).split(QChar(u'|'));
}
