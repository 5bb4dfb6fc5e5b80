#pragma once

#include <QString>
#include <cstdint>

/// Checks of typed text before it may reach a configuration file, whose lines are quoted and separated by commas.

/// 0 when the last checked text passed; otherwise the position (from 1) of the character that did not.
extern std::int16_t ErrorPosition;

/// The result of the cleaning mode of CheckInputText.
extern QString CleanedText;

/// Accepts only characters of `allowed` (case counts). mode 1 reports with the long message, 2 with the short one, any
/// other checks silently. Sets ErrorPosition; an empty text passes.
void CheckAllowedCharacters(const QString& text, const QString& allowed, std::int16_t mode);

/// Refuses control characters, double quotes, the characters of `refused`, and, unless allowed by a non-zero flag,
/// commas and line breaks. mode 0 reports the first refused character; mode 1 replaces each by '~' (by a blank when
/// `refused` is empty) in `text` and sets CleanedText to it without blanks at both ends. Sets ErrorPosition (0 in mode
/// 1).
void CheckInputText(QString& text, std::int16_t allowCommas, std::int16_t allowLineBreaks, const QString& refused,
                    std::int16_t mode);
