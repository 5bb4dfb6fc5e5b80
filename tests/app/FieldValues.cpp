#include "tests/app/FieldValues.h"

#include "app/ConfigFile.h"

#include <ostream>
#include <utility>

namespace {

template <class... Handlers>
struct Overloaded : Handlers... {
    using Handlers::operator()...;
};
template <class... Handlers>
Overloaded(Handlers...) -> Overloaded<Handlers...>;

} // namespace

void ForEachValue(ProgramConfigRecord& config, const std::function<void(const char*, QString&)>& text,
                  const std::function<void(const char*, std::int16_t&)>& number) {
    for (const auto* sections : {&FixedSections(), &CountedSections()}) {
        for (const SettingsSection& section : *sections) {
            for (const SettingsLine& line : section.Lines) {
                for (const SettingsField& field : line.Fields) {
                    for (std::int16_t i = 0; i <= HighestIndex(line.Repeat); ++i) {
                        const auto index = static_cast<std::size_t>(i);
                        std::visit(
                            Overloaded{[&](const TextField& kind) { text(field.Name, kind.Value(config, index)); },
                                       [&](const NumberField& kind) { number(field.Name, kind.Value(config, index)); },
                                       [](const auto&) {}},
                            field.Kind);
                    }
                }
            }
        }
    }
}

ProgramConfigRecord DefaultRecord() {
    const ProgramConfigRecord before = ProgramConfig;
    SetDefaultSettings();
    return std::exchange(ProgramConfig, before);
}

void PrintTo(const ProgramConfigRecord& config, std::ostream* stream) {
    ProgramConfigRecord copy = config;
    *stream << "lock " << copy.ConfigLock;
    ForEachValue(
        copy, [&](const char* name, QString& value) { *stream << ' ' << name << "=[" << value.toStdString() << ']'; },
        [&](const char* name, std::int16_t& value) { *stream << ' ' << name << '=' << value; });
}

ProgramConfigRecord EveryField() {
    ProgramConfigRecord config = DefaultRecord();
    config.ConfigLock = 0;
    config.DefaultPath = QStringLiteral("c:\\marks, term 1\\2016");
    config.BarCodeDefaultForm = 1;
    config.BarCodeDefaultFormCopy = 2;
    config.BarCodeFontName = QStringLiteral("Barres 39");
    config.BarCodeDesc = {QStringLiteral("Absent"), QStringLiteral("En retard"), QString::fromUtf8("Excusé")};
    config.BarCodeCode = {65, 13, 36};
    config.PathToWordProcessor = QStringLiteral("c:\\office\\winword.exe");
    config.PathToAdmin = QStringLiteral("g:\\admin");
    config.ImportStudentsFile = QString::fromUtf8("G:\\Élèves\\students.txt");
    config.ImportFieldLast = 3;
    config.ImportFields[0] = QStringLiteral("4");
    config.ImportFields[1] = QStringLiteral("Last Name");
    config.ImportFields[2] = QStringLiteral("First Name");
    config.ImportFields[3] = QStringLiteral("DOB (MMDDYear)");
    config.DateFormat = 6;
    config.PrinterDialogBox = 1;
    config.WidthOfThickLines = 11;
    config.RuleCourseStart = 3;
    config.RuleCourseLength = 7;
    config.RuleSectionStart = 10;
    config.RuleSectionLength = 2;
    config.RuleGradeStart = 5;
    config.RuleGradeLength = 8;
    config.RuleGradeConv = 1;
    config.RuleUseSplitChar = 2;
    for (int i = 0; i < 16; ++i) {
        config.RuleGSymbol[static_cast<std::size_t>(i)] = QStringLiteral("S%1").arg(i);
        config.RuleGActual[static_cast<std::size_t>(i)] = QStringLiteral("G%1").arg(100 + i);
    }
    config.PathToStudentPhotos = QStringLiteral("h:\\photos\\");
    config.StudentPhotoExtension = QStringLiteral(".jpg");
    config.SMTPHostName = QStringLiteral("mail.school.example");
    config.HTMLSchool = QStringLiteral("S1");
    config.HTMLFileSep1 = QStringLiteral("-");
    config.HTMLFileSep2 = QStringLiteral("~");
    config.HTMLFileNameOrder = 7;
    config.HTMLReserved = -9;
    config.HTMLPath = QStringLiteral("h:\\html");
    config.BackupDestinationPath = QStringLiteral("h:\\backup");
    config.AECourseCodeSplitCharacter = QStringLiteral("#");
    return config;
}
