#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>

/// The gradebook's student fields that a column of the import file can hold, and the forms of a birth date.
/// Fields are numbered from 1, in the order of the list that the import window shows.

inline constexpr int FieldCount = 16;
inline constexpr int DobFormatCount = 6;

/// Fields that a rule speaks of by name.
inline constexpr int LastNameField = 1;
inline constexpr int FirstNameField = 2;
inline constexpr int DobField = 7;
inline constexpr int ImportIf1Field = 13;
inline constexpr int ImportIf2Field = 14;
inline constexpr int IgnoreField = 16;

/// The captions of the fields; entry 0 is unused, entry DobField is empty, as it depends on the chosen format.
using FieldCaptions = std::array<QString, FieldCount + 1>;

/// The words of the field list in one language.
struct FieldList {
    FieldCaptions Captions;
    QString DobPrefix;      ///< "DOB": with a format in parentheses it is the caption of the birth date
    QStringList DobFormats; ///< indexed by the DOB format code

    /// The caption of field 1 to 16 while the birth date has a format.
    QString Caption(int field, int dobFormat) const;

    /// "DOB (Year/Mth/Day)".
    QString DobCaption(int dobFormat) const;
};

FieldList EnglishFieldList();
FieldList FrenchFieldList();

/// The format that the code of match entry 0 ("0" to "5") stands for; 0 for every other text.
int DobFormatOf(const QString& code);

/// Whether a match name is a birth date entry: it begins with the prefix and " (", in any case.
bool IsDobEntry(const QString& name, const QString& prefix);
