#pragma once

#include <QString>
#include <cstdint>

/// The number that a text begins with: leading blanks are skipped, then a sign, digits, a decimal point and an exponent
/// ("E" with a sign or without) are taken, and the reading stops at the first character that cannot belong to the
/// number. A text that begins with none gives 0. Halves are rounded to the even neighbour: 24.5 gives 24, 25.5
/// gives 26. Returns false, and leaves `value` alone, when the rounded number does not fit 16 bits.
bool LeadingNumber(const QString& text, std::int16_t& value);
