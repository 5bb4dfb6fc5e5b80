#pragma once

#include "app/ProgramConfig.h"

#include <cstddef>
#include <variant>
#include <vector>

/// The one table of the stored settings, in the order of the file: what each is called, where it lies in the record,
/// its default, what it means, and the line forms of its section. The defaults, the reader and the writer go by it.

enum class LineForm { Plain, Quoted };

/// How often a line stands in the file: once, or once for each index from 0 to a last one.
enum class LineRepeat { Once, BarCodePairs, ImportFields, RulePairs };

using TextAccess = QString& (*)(ProgramConfigRecord&, std::size_t index);
using NumberAccess = std::int16_t& (*)(ProgramConfigRecord&, std::size_t index);

struct TextField {
    TextAccess Value;
    const char* Default;
};
struct NumberField {
    NumberAccess Value;
    std::int16_t Default;
    std::int16_t Highest; ///< a greater number ends the reading
};
/// The highest index of the bar code pairs: always written as 2, obeyed when read.
struct PairCountField {};
/// A value that no version reads any more: written empty, dropped when read.
struct ObsoleteField {};

struct SettingsField {
    const char* Name;
    std::variant<TextField, NumberField, PairCountField, ObsoleteField> Kind;
    const char* Meaning;
};

struct SettingsLine {
    LineForm Form;
    LineRepeat Repeat;
    std::vector<SettingsField> Fields;
};

struct SettingsSection {
    const char* Title;
    const char* FrenchTitle; ///< null where the French edition writes the same
    LineForm TitleForm;
    std::vector<SettingsLine> Lines;
};

/// The sections before the section count; every file has them.
const std::vector<SettingsSection>& FixedSections();

/// The sections after the section count; a file of an earlier version has only the first ones.
const std::vector<SettingsSection>& CountedSections();

inline constexpr std::int16_t LastBarCodePair = 2;
inline constexpr std::int16_t LastImportField = 24;
inline constexpr std::int16_t LastRulePair = 15;

/// The highest index that the record has room for.
std::int16_t HighestIndex(LineRepeat repeat);
