#pragma once

#include <QString>
#include <array>
#include <cstdint>

/// Which gradebook the program was built for; fixed by one small translation unit of each program.
enum class Edition { English, French };

extern Edition ProgramEdition;

// Set at start-up by SetProductTexts and alive for the whole run.
extern QString ProductName;     ///< "Gradewell" or "Carnelle"
extern QString VersionText;     ///< "2016 CY"
extern QString WindowTitle;     ///< "Gradewell 2016 Config"; the options windows add a suffix
extern QString TransferExeName; ///< the Transfer Program's file; its presence shows the Transfer area
extern QString ConfigFilesText; ///< "GW_v11_PRG.CFG and GW_v12_PRG.CFG"; empty in the French edition
extern QString NoticeText;      ///< "Copyright (c) " and the year
extern QString TitleLine;       ///< first line of every configuration file; never holds a comma
extern QString ProgramFolder;   ///< the folder that the program runs from, without a trailing backslash
extern QString ConfigFileName;  ///< the configuration file that was read

/// Month and weekday names of the edition, indexed from 1 (January, Sunday); entry 0 is empty.
extern std::array<QString, 13> MonthNames;
extern std::array<QString, 8> WeekdayNames;

/// Sets the product texts, file names and calendar names of an edition.
void SetProductTexts(Edition edition);

/// Builds NoticeText for the year and TitleLine from it.
void SetTitleLine(int year);

/// The folder of the running program without a trailing backslash: "C:\" gives "C:".
QString ProgramFolderFrom(const QString& folder);
