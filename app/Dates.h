#pragma once

#include "platform/SystemError.h"

#include <QDate>
#include <QString>
#include <array>
#include <cstdint>

/// Date texts in the six formats of the gradebook (format codes 1 to 6), in the language of the calendar name tables.

extern std::array<QString, 5> DatePatterns; ///< for the codes 1 to 4; entry 0 is unused
extern QString YearPattern;
extern QString TodayText;
extern QString WeekdayAbbrev; ///< three letters and a period
extern QString WeekdayName;
extern QString MonthAbbrev; ///< three letters and a period; no period after May
extern QString MonthName;
extern std::int16_t LeapYear; ///< 1 when the year given to SetLeapYear is a leap year, else 0

inline constexpr std::int16_t FirstDateFormat = 1;
inline constexpr std::int16_t LastDateFormat = 6;

/// Four digits of the year for 0, two for anything else.
void SetDatePatterns(std::int16_t twoDigitYear);

/// Sets TodayText for `today` in a format. Number 9 for a code outside 1 to 6; TodayText then stays as it was.
SystemError MakeTodayText(std::int16_t format, QDate today);

/// Sets WeekdayAbbrev, WeekdayName, MonthAbbrev and MonthName for a date.
void DateParts(QDate date);

/// Turns three letters of a weekday (Monday to Friday) and of a month, English or French, back into names; see the
/// routine for how positions become numbers. Texts that are not found change nothing.
void ParseDayMonth(const QString& dayText, const QString& monthText);

/// Sets LeapYear for a year of the Gregorian calendar.
void SetLeapYear(int year);

/// The two texts of the main menu's date: the date in the configured format and the true weekday's abbreviation.
struct TodayTexts {
    QString Date;
    QString Weekday;
};

/// `yyyymmdd` as "20160307". A format outside 1 to 6 is shown as format 1, as General Options would take it.
/// Both texts are empty when the date is none.
TodayTexts MakeTodayTexts(const QString& yyyymmdd, std::int16_t format);
