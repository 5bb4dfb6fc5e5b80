#include "app/Dates.h"

#include "app/ProductTexts.h"
#include "platform/CodePage.h"
#include "platform/Desktop.h"

#include <QLocale>

std::array<QString, 5> DatePatterns;
QString YearPattern;
QString TodayText;
QString WeekdayAbbrev;
QString WeekdayName;
QString MonthAbbrev;
QString MonthName;
std::int16_t LeapYear = 0;

namespace {

constexpr std::int16_t MonthFirstFormat = 5; // Mar. 7, 2016
constexpr std::size_t May = 5;               // its three letters are its whole name

QString Digits(int number, int width) {
    return QStringLiteral("%1").arg(number, width, 10, QLatin1Char('0'));
}

// A run of one letter of a pattern: "yyyy", "yy", "mm", "m", "dd", "d"; anything else stands for itself.
QString PatternPart(QDate date, QStringView run) {
    const int width = static_cast<int>(run.size());
    switch (run.front().unicode()) {
    case u'y':
        return width > 2 ? Digits(date.year(), 4) : Digits(date.year() % 100, 2);
    case u'm':
        return Digits(date.month(), width);
    case u'd':
        return Digits(date.day(), width);
    default:
        return run.toString();
    }
}

QString FormatDate(QDate date, const QString& pattern) {
    QString text;
    for (qsizetype at = 0; at < pattern.size();) {
        qsizetype end = at + 1;
        while (end < pattern.size() && pattern[end] == pattern[at]) {
            ++end;
        }
        text += PatternPart(date, QStringView(pattern).mid(at, end - at));
        at = end;
    }
    return text;
}

// The number of the entry that a text found at this place of a string of three-letter entries stands for; 0 for none.
std::size_t EntryAt(const QString& text, const QString& entries, std::size_t count) {
    const qsizetype position = entries.indexOf(UpperCase(text)) + 1;
    const auto number = static_cast<std::size_t>(position / 3 + 1);
    return position > 0 && number <= count ? number : 0;
}

void SetMonth(std::size_t number) {
    MonthName = MonthNames[number];
    MonthAbbrev = MonthName.left(3) + (number == May ? QString() : QStringLiteral("."));
}

void SetWeekday(std::size_t number) {
    WeekdayName = WeekdayNames[number];
    WeekdayAbbrev = WeekdayName.left(3) + QStringLiteral(".");
}

} // namespace

void SetDatePatterns(std::int16_t twoDigitYear) {
    YearPattern = twoDigitYear == 0 ? QStringLiteral("yyyy") : QStringLiteral("yy");
    DatePatterns = {QString(), YearPattern + QStringLiteral(" mm dd"), YearPattern + QStringLiteral("/m/d"),
                    QStringLiteral("m/d/") + YearPattern, QStringLiteral("d/m/") + YearPattern};
}

SystemError MakeTodayText(std::int16_t format, QDate today) {
    if (format < FirstDateFormat || format > LastDateFormat) {
        return MakeError(ErrorNumber::SubscriptOutOfRange);
    }
    if (format < MonthFirstFormat) {
        TodayText = FormatDate(today, DatePatterns[static_cast<std::size_t>(format)]);
        return {};
    }
    ParseDayMonth(QString(), QLocale::c().toString(today, QStringLiteral("MMM")));
    if (format == MonthFirstFormat) {
        TodayText = MonthAbbrev + QStringLiteral(" ") + FormatDate(today, QStringLiteral("d, ") + YearPattern);
    } else {
        TodayText = FormatDate(today, QStringLiteral("d")) + QStringLiteral(" ") + MonthAbbrev + QStringLiteral(" ") +
                    FormatDate(today, YearPattern);
    }
    return {};
}

void DateParts(QDate date) {
    SetWeekday(static_cast<std::size_t>(date.dayOfWeek() % 7 + 1)); // Sunday is day 1
    SetMonth(static_cast<std::size_t>(date.month()));
}

// The weekday string starts with Monday, the name table with Sunday, so "MON" gives the first name, Sunday's; the
// gradebook's files were written that way. In the French months "Jui" stands for June and July; the search finds June.
void ParseDayMonth(const QString& dayText, const QString& monthText) {
    if (!dayText.isEmpty()) {
        MsgAnswer = 0;
        std::size_t day = EntryAt(dayText, QStringLiteral("MONTUEWEDTHUFRI"), 7);
        day = day > 0 ? day : EntryAt(dayText, QStringLiteral("LUNMARMERJEUVEN"), 7);
        if (day > 0) {
            SetWeekday(day);
            MsgAnswer = static_cast<std::int16_t>(day);
        }
    }
    if (!monthText.isEmpty()) {
        const QString french = UpperCase(QString::fromUtf8("JANFévMARAvrMAYJuiJuiAôuSEPOCTNOVDéc"));
        std::size_t month = EntryAt(monthText, QStringLiteral("JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC"), 12);
        month = month > 0 ? month : EntryAt(monthText, french, 12);
        if (month > 0) {
            SetMonth(month);
        }
    }
}

void SetLeapYear(int year) {
    LeapYear = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0) ? 1 : 0;
}

TodayTexts MakeTodayTexts(const QString& yyyymmdd, std::int16_t format) {
    const QDate date = QDate::fromString(yyyymmdd, QStringLiteral("yyyyMMdd"));
    if (!date.isValid()) {
        return {};
    }
    const bool known = format >= FirstDateFormat && format <= LastDateFormat;
    MakeTodayText(known ? format : FirstDateFormat, date);
    DateParts(date);
    return {TodayText, WeekdayAbbrev};
}
