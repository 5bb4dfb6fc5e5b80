#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

/// The optional characters of the bar-coded attendance form: 0 none, 9 Tab, 13 Enter, 36 '$', 65 to 90 'A' to 'Z'.

inline constexpr std::int16_t NoBarCode = 0;

/// The texts of a code list: "[None]", "[Tab]", "[Enter]", "$", "A" to "Z".
QStringList BarCodeListTexts();

/// The code of a list text; 0 for "[None]" and for an empty text.
std::int16_t BarCodeOfText(const QString& text);

/// The list index of a code, -1 when the list lacks it.
int BarCodeIndex(std::int16_t code);

/// What the form prints for a code, in Code 39 with its start and stop characters: "*A*", "*$I*" for Tab, "*$M*" for
/// Enter; empty for no code and for a number that is no character.
QString BarCodeResult(std::int16_t code);
