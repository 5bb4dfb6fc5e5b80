#include "app/ConfigFile.h"
#include "app/SettingsTable.h"

namespace {

struct DefaultLevel {
    const char* symbol;
    std::int16_t value; // lower limit in percent
};

// Lowest first; each symbol applies up to just below the next one's value.
constexpr DefaultLevel DefaultScheme[] = {
    {"F", 0},   {"D-", 50}, {"D", 53},  {"D+", 57}, {"C-", 60}, {"C", 63},  {"C+", 67},
    {"B-", 70}, {"B", 73},  {"B+", 77}, {"A-", 80}, {"A", 85},  {"A+", 90},
};

void SetDefault(const TextField& field, std::size_t index) {
    field.Value(ProgramConfig, index) = QString::fromLatin1(field.Default);
}

void SetDefault(const NumberField& field, std::size_t index) {
    field.Value(ProgramConfig, index) = field.Default;
}

void SetDefault(const PairCountField&, std::size_t) {}

void SetDefault(const ObsoleteField&, std::size_t) {}

void SetDefaults(const std::vector<SettingsSection>& sections) {
    for (const SettingsSection& section : sections) {
        for (const SettingsLine& line : section.Lines) {
            for (const SettingsField& field : line.Fields) {
                for (std::int16_t i = 0; i <= HighestIndex(line.Repeat); ++i) {
                    std::visit([i](const auto& kind) { SetDefault(kind, static_cast<std::size_t>(i)); }, field.Kind);
                }
            }
        }
    }
}

void SetDefaultScheme() {
    ProgramConfig.SchemeHeading = QStringLiteral("ABC");
    ProgramConfig.SchemeLast = static_cast<std::int16_t>(std::size(DefaultScheme) - 1);
    ProgramConfig.SchemeSymbol.fill(QString());
    ProgramConfig.SchemeValue.fill(0);
    for (std::size_t i = 0; i < std::size(DefaultScheme); ++i) {
        ProgramConfig.SchemeSymbol[i] = QString::fromLatin1(DefaultScheme[i].symbol);
        ProgramConfig.SchemeValue[i] = DefaultScheme[i].value;
    }
}

} // namespace

void SetDefaultSettings() {
    ProgramConfig.ConfigLock = 1; // until a file says otherwise
    SetDefaults(FixedSections());
    SetDefaults(CountedSections());
    ProgramConfig.SchoolYearSecondWord = 1;
    ProgramConfig.TwoDigitYear = 0;
    SetDefaultScheme();
    ProgramConfig.PrinterFontName = QStringLiteral("Arial");
}
