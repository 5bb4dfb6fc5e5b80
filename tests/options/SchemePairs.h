#pragma once

#include "options/SchemeFile.h"
#include "tests/support/Text.h"

inline SchemePair Pair(const char* symbol, const char* value) {
    return {Text(symbol), Text(value)};
}
