#pragma once

#include "app/ProductTexts.h"

/// The edition that this program was built as. Each program links the one translation unit that says which.
extern const Edition BuiltEdition;
