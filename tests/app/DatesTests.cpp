#include "app/CFG_2015.h"

#include <gtest/gtest.h>

namespace {

class Dates : public testing::Test {
protected:
    Dates() { Use(Edition::English); }

    static void Use(Edition edition) {
        SetProductTexts(edition);
        SetDatePatterns(0);
        MsgAnswer = 0;
        for (QString* text : {&WeekdayAbbrev, &WeekdayName, &MonthAbbrev, &MonthName, &TodayText}) {
            *text = QStringLiteral("before");
        }
    }

    static QString Today(std::int16_t format, QDate date) {
        EXPECT_FALSE(MakeTodayText(format, date));
        return TodayText;
    }
};

TEST_F(Dates, SixFormats) {
    const QDate march(2016, 3, 7);
    const char* english[] = {"2016 03 07", "2016/3/7", "3/7/2016", "7/3/2016", "Mar. 7, 2016", "7 Mar. 2016"};
    const char* french[] = {"2016 03 07", "2016/3/7", "3/7/2016", "7/3/2016", "mar. 7, 2016", "7 mar. 2016"};
    for (std::int16_t format = 1; format <= 6; ++format) {
        Use(Edition::English);
        EXPECT_EQ(Today(format, march), QString::fromUtf8(english[format - 1]));
        Use(Edition::French);
        EXPECT_EQ(Today(format, march), QString::fromUtf8(french[format - 1]));
    }
}

TEST_F(Dates, TwoDigitYears) {
    SetDatePatterns(1);
    EXPECT_EQ(YearPattern, QStringLiteral("yy"));
    const char* texts[] = {"16 03 07", "16/3/7", "3/7/16", "7/3/16", "Mar. 7, 16", "7 Mar. 16"};
    for (std::int16_t format = 1; format <= 6; ++format) {
        EXPECT_EQ(Today(format, QDate(2016, 3, 7)), QString::fromUtf8(texts[format - 1]));
    }
    EXPECT_EQ(Today(1, QDate(2003, 11, 25)), QStringLiteral("03 11 25"));
}

TEST_F(Dates, Patterns) {
    EXPECT_EQ(DatePatterns[1], QStringLiteral("yyyy mm dd"));
    EXPECT_EQ(DatePatterns[2], QStringLiteral("yyyy/m/d"));
    EXPECT_EQ(DatePatterns[3], QStringLiteral("m/d/yyyy"));
    EXPECT_EQ(DatePatterns[4], QStringLiteral("d/m/yyyy"));
    EXPECT_EQ(YearPattern, QStringLiteral("yyyy"));
    SetDatePatterns(-1);
    EXPECT_EQ(DatePatterns[1], QStringLiteral("yy mm dd"));
}

TEST_F(Dates, NoPeriodAfterMay) {
    EXPECT_EQ(Today(5, QDate(2016, 5, 7)), QStringLiteral("May 7, 2016"));
    Use(Edition::French);
    EXPECT_EQ(Today(5, QDate(2016, 5, 7)), QStringLiteral("mai 7, 2016"));
}

TEST_F(Dates, EveryMonthInBothLanguages) {
    const char* english[] = {"Jan.", "Feb.", "Mar.", "Apr.", "May",  "Jun.",
                             "Jul.", "Aug.", "Sep.", "Oct.", "Nov.", "Dec."};
    const char* french[] = {"jan.", "fév.", "mar.", "avr.", "mai",  "jui.",
                            "jui.", "aôu.", "sep.", "oct.", "nov.", "déc."};
    for (int month = 1; month <= 12; ++month) {
        Use(Edition::English);
        EXPECT_EQ(Today(6, QDate(2016, month, 1)),
                  QStringLiteral("1 %1 2016").arg(QString::fromUtf8(english[month - 1])));
        Use(Edition::French);
        EXPECT_EQ(Today(6, QDate(2016, month, 1)),
                  QStringLiteral("1 %1 2016").arg(QString::fromUtf8(french[month - 1])));
    }
}

TEST_F(Dates, FormatsOutsideOneToSixAreAnError) {
    for (const int format : {0, 7, 8, -1, 32767, -32768}) {
        EXPECT_EQ(MakeTodayText(static_cast<std::int16_t>(format), QDate(2016, 3, 7)).Number, 9) << format;
        EXPECT_EQ(TodayText, QStringLiteral("before")) << format;
    }
}

TEST_F(Dates, PartsOfADate) {
    DateParts(QDate(2016, 3, 6));
    EXPECT_EQ(WeekdayAbbrev, QStringLiteral("Sun."));
    EXPECT_EQ(WeekdayName, QStringLiteral("Sunday"));
    EXPECT_EQ(MonthAbbrev, QStringLiteral("Mar."));
    EXPECT_EQ(MonthName, QStringLiteral("March"));
    DateParts(QDate(2016, 5, 7));
    EXPECT_EQ(WeekdayAbbrev, QStringLiteral("Sat."));
    EXPECT_EQ(MonthAbbrev, QStringLiteral("May"));
    Use(Edition::French);
    DateParts(QDate(2016, 8, 10));
    EXPECT_EQ(WeekdayName, QStringLiteral("mercredi"));
    EXPECT_EQ(MonthName, QString::fromUtf8("aôut"));
}

struct DayText {
    const char* text;
    int weekday; // 0: not found
};

TEST_F(Dates, WeekdayTexts) {
    for (const auto& [text, weekday] : {DayText{"MON", 1}, DayText{"tue", 2}, DayText{"Wed", 3}, DayText{"THU", 4},
                                        DayText{"FRI", 5}, DayText{"LUN", 1}, DayText{"mar", 2}, DayText{"MER", 3},
                                        DayText{"JEU", 4}, DayText{"VEN", 5}, DayText{"SAT", 0}, DayText{"SUN", 0},
                                        DayText{"DIM", 0}, DayText{"xyz", 0}, DayText{"N", 2}, DayText{"I", 6}}) {
        Use(Edition::English);
        MsgAnswer = 7;
        ParseDayMonth(QString::fromUtf8(text), QString());
        EXPECT_EQ(MsgAnswer, weekday) << text;
        const QString name = weekday > 0 ? WeekdayNames[static_cast<std::size_t>(weekday)] : QStringLiteral("before");
        EXPECT_EQ(WeekdayName, name) << text;
        EXPECT_EQ(WeekdayAbbrev, weekday > 0 ? name.left(3) + QStringLiteral(".") : name) << text;
        EXPECT_EQ(MonthName, QStringLiteral("before")) << text;
    }
}

struct MonthText {
    const char* text;
    int month; // 0: not found
};

TEST_F(Dates, MonthTexts) {
    for (const auto& [text, month] :
         {MonthText{"JAN", 1},  MonthText{"feb", 2},  MonthText{"Mar", 3}, MonthText{"APR", 4},  MonthText{"MAY", 5},
          MonthText{"JUN", 6},  MonthText{"JUL", 7},  MonthText{"AUG", 8}, MonthText{"SEP", 9},  MonthText{"OCT", 10},
          MonthText{"NOV", 11}, MonthText{"DEC", 12}, MonthText{"fév", 2}, MonthText{"FÉV", 2},  MonthText{"avr", 4},
          MonthText{"JUI", 6},  MonthText{"jui", 6},  MonthText{"aôu", 8}, MonthText{"déc", 12}, MonthText{"MAI", 0},
          MonthText{"xyz", 0},  MonthText{"C", 10},   MonthText{"B", 3},   MonthText{"JANFE", 1}}) {
        Use(Edition::English);
        MsgAnswer = 3;
        ParseDayMonth(QString(), QString::fromUtf8(text));
        const QString name = month > 0 ? MonthNames[static_cast<std::size_t>(month)] : QStringLiteral("before");
        EXPECT_EQ(MonthName, name) << text;
        const QString abbreviation = month == 5 ? QStringLiteral("May") : name.left(3) + QStringLiteral(".");
        EXPECT_EQ(MonthAbbrev, month > 0 ? abbreviation : name) << text;
        EXPECT_EQ(WeekdayName, QStringLiteral("before")) << text;
        EXPECT_EQ(MsgAnswer, 3) << "no day text, no weekday number";
    }
}

TEST_F(Dates, EmptyTextsChangeNothing) {
    MsgAnswer = 5;
    ParseDayMonth(QString(), QString());
    EXPECT_EQ(MsgAnswer, 5);
    EXPECT_EQ(WeekdayName, QStringLiteral("before"));
    EXPECT_EQ(MonthName, QStringLiteral("before"));
}

TEST_F(Dates, LeapYears) {
    for (const int year : {2000, 2016, 2024, 2400, 4}) {
        SetLeapYear(year);
        EXPECT_EQ(LeapYear, 1) << year;
    }
    for (const int year : {1900, 2015, 2100, 2026, 1}) {
        SetLeapYear(year);
        EXPECT_EQ(LeapYear, 0) << year;
    }
}

TEST_F(Dates, MenuTextsShowTheTrueWeekday) {
    struct Case {
        Edition edition;
        const char* day;
        std::int16_t format;
        const char* date;
        const char* weekday;
    };
    for (const auto& [edition, day, format, date, weekday] :
         {Case{Edition::English, "20160307", 1, "2016 03 07", "Mon."},
          Case{Edition::English, "20160307", 2, "2016/3/7", "Mon."},
          Case{Edition::English, "20160308", 3, "3/8/2016", "Tue."},
          Case{Edition::English, "20160309", 4, "9/3/2016", "Wed."},
          Case{Edition::English, "20160310", 5, "Mar. 10, 2016", "Thu."},
          Case{Edition::English, "20160506", 6, "6 May 2016", "Fri."},
          Case{Edition::English, "20160312", 1, "2016 03 12", "Sat."},
          Case{Edition::English, "20160313", 1, "2016 03 13", "Sun."},
          Case{Edition::French, "20160307", 1, "2016 03 07", "lun."},
          Case{Edition::French, "20160307", 2, "2016/3/7", "lun."},
          Case{Edition::French, "20160308", 3, "3/8/2016", "mar."},
          Case{Edition::French, "20160809", 4, "9/8/2016", "mar."},
          Case{Edition::French, "20160810", 5, "aôu. 10, 2016", "mer."},
          Case{Edition::French, "20161211", 6, "11 déc. 2016", "dim."},
          Case{Edition::English, "20160307", 0, "2016 03 07", "Mon."},
          Case{Edition::English, "20160307", 7, "2016 03 07", "Mon."},
          Case{Edition::English, "20160307", -5, "2016 03 07", "Mon."}}) {
        Use(edition);
        const TodayTexts texts = MakeTodayTexts(QString::fromLatin1(day), format);
        EXPECT_EQ(texts.Date, QString::fromUtf8(date)) << day << " " << format;
        EXPECT_EQ(texts.Weekday, QString::fromUtf8(weekday)) << day << " " << format;
    }
    EXPECT_EQ(MakeTodayTexts(QStringLiteral("20161340"), 1).Date, QString());
    EXPECT_EQ(MakeTodayTexts(QString(), 1).Weekday, QString());
}

} // namespace
