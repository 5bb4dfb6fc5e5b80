#pragma once

#include "import/RecordBytes.h"

#include <QString>
#include <QStringList>
#include <cstdint>

/// Takes a record of the import file apart, as the gradebook will.

inline constexpr int FieldLimit = 24;

/// So many characters of a field are kept for showing; a longer one is cut.
inline constexpr int ShownCharacters = 4096;

struct ImportRecord {
    char Separator = '\0'; ///< tab or comma; '\0' when the record has neither
    QStringList Fields;    ///< 1 to 24, each without blanks at both ends
};

/// Splits the bytes [from, to), a record without its line end. A tab anywhere makes the tab the separator, else a comma
/// does, else the record is one field. In a field that begins with a double quote, tabs, commas and double quotes up to
/// the next double quote become blanks before the separator is looked for. A trailing separator adds no field, and
/// what follows the 24th separator is dropped.
ImportRecord SplitImportRecord(RecordBytes& bytes, std::int64_t from, std::int64_t to);

/// The same for a record in memory.
ImportRecord SplitImportRecord(const QByteArray& record);
