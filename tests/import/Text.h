#pragma once

#include "tests/support/PrintText.h"

#include <QString>

/// Texts of these tests are written in UTF-8.
inline QString Text(const char* utf8) {
    return QString::fromUtf8(utf8);
}
