#pragma once

#include <QByteArray>
#include <QString>

/// Windows-1252, the code page of every file that the gradebook reads and writes: one byte a character.
/// All 256 byte values survive a read and a write; the five that the code page leaves unassigned
/// (129, 141, 143, 144, 157) are the C1 control characters of the same number.

/// The text of the bytes; as many characters as bytes.
QString TextFromBytes(const QByteArray& bytes);

/// The bytes of the text; a character that the code page lacks becomes '?', a surrogate pair one '?'.
QByteArray BytesFromText(const QString& text);

/// Whether the code page has the character.
bool CodePageHas(QChar character);

/// Whether every character of the text can be written.
bool CodePageHasAll(const QString& text);

/// The text with each character that cannot be written replaced by '?' (a surrogate pair by one '?').
QString OnlyCodePage(const QString& text);

/// Capital letters, one character for one: a character whose capital is longer ("ß") or is not in the code page
/// stays as it is, so positions in the text keep their meaning.
QString UpperCase(const QString& text);

/// Small letters, one character for one, in the same way.
QString LowerCase(const QString& text);

/// The text without blanks at both ends. Blanks are the space character only; a tab stays.
QString TrimBlanks(const QString& text);
