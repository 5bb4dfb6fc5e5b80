#pragma once

#include <QString>
#include <array>
#include <cstdint>

/// The settings record: every value of the program configuration file, and the few that live only as long as the run.
/// The defaults stand in the settings table (SettingsTable.h); SetDefaultSettings puts them here.
struct ProgramConfigRecord {
    // Stored, in the order of the file.
    std::int16_t ConfigLock = 0;
    QString DefaultPath;
    std::int16_t SchoolYearStartMonth = 0;
    std::int16_t BarCodeDefaultForm = 0;
    std::int16_t BarCodeDefaultFormCopy = 0;
    QString BarCodeFontName;
    std::array<QString, 3> BarCodeDesc;
    std::array<std::int16_t, 3> BarCodeCode{};
    QString PathToWordProcessor;
    QString PathToAdmin;
    QString ImportStudentsFile;
    std::int16_t ImportFieldLast = 0;
    std::array<QString, 25> ImportFields;
    std::int16_t DateFormat = 0;
    std::int16_t PrinterDialogBox = 0;
    std::int16_t WidthOfThickLines = 0;
    std::int16_t RuleCourseStart = 0;
    std::int16_t RuleCourseLength = 0;
    std::int16_t RuleSectionStart = 0;
    std::int16_t RuleSectionLength = 0;
    std::int16_t RuleGradeStart = 0;
    std::int16_t RuleGradeLength = 0;
    std::int16_t RuleGradeConv = 0;
    std::int16_t RuleUseSplitChar = 0;
    std::array<QString, 16> RuleGSymbol;
    std::array<QString, 16> RuleGActual;
    QString PathToStudentPhotos;
    QString StudentPhotoExtension;
    QString SMTPHostName;
    QString HTMLSchool;
    QString HTMLFileSep1;
    QString HTMLFileSep2;
    std::int16_t HTMLFileNameOrder = 0;
    std::int16_t HTMLReserved = 0;
    QString HTMLPath;
    QString BackupDestinationPath;
    QString AECourseCodeSplitCharacter;

    // Not stored.
    std::int16_t SchoolYearSecondWord = 1; ///< General Options sets it to 1 together with SchoolYearStartMonth
    std::int16_t TwoDigitYear = 0;         ///< 0: dates show four digits of the year; else two
    QString SchemeHeading;
    std::int16_t SchemeLast = 0; ///< highest position in use, 1 to 18
    std::array<QString, 19> SchemeSymbol;
    std::array<std::int16_t, 19> SchemeValue{}; ///< lower limits in percent
    QString PrinterFontName;

    friend bool operator==(const ProgramConfigRecord&, const ProgramConfigRecord&) = default;
};

/// The one record of the run. Windows copy from it when they load and into it when they save.
extern ProgramConfigRecord ProgramConfig;
