#pragma once

#include "platform/widgets/Captions.h"

#include <QString>
#include <QStringList>
#include <span>

/// The texts of the Transfer Program options window in both editions, exactly as administrators know them.

/// The captions of its controls, but for the ones below.
std::span<const Caption> TransferCaptions();

/// What stands after the application's title in the window's title.
QString TransferTitleSuffix(CaptionLanguage language);

/// The bare name of the Transfer Program's configuration file.
QString TransferFileName(CaptionLanguage language);

/// What stands between the system and the board in the file's last line.
QString SystemNameSeparator(CaptionLanguage language);

/// The four board types, in the order of their numbers.
QStringList BoardNames(CaptionLanguage language);

/// The caption of lblGWTHelp around the file's name.
QString TransferHelpText(CaptionLanguage language, const QString& fileName);

/// Title and text of the box before Browse's dialog.
QString ReportBrowseTitle(CaptionLanguage language);
QString ReportBrowseText(CaptionLanguage language);

/// The question before the work habits list is opened; `programFolder` without a trailing backslash. English only.
inline constexpr char16_t WorkHabitsTitle[] = u"CREATE/EDIT 'WorkHabits.txt'";
QString WorkHabitsQuestion(const QString& programFolder);

/// The box when no text editor can be started for `file`.
QString EditorErrorTitle(CaptionLanguage language);
QString EditorErrorText(CaptionLanguage language, const QString& file);
