#include "admin/CourseCodeRules.h"

#include <gtest/gtest.h>

namespace {

// Course 1 / 3, section 8 / 2, grade 4 / 1: ENG 1 D1- 01.
CourseCodeRules Rules() {
    return {1, 3, 8, 2, 4, 1, false, QStringLiteral("-"), false};
}

using Table = std::vector<GradeConversion>;

struct SplitCase {
    const char* Name;
    const char* Code;
    CourseCodeRules Rules;
    Table Conversions;
    const char* Course;
    const char* Section;
    const char* Grade;
};

template <typename Change>
CourseCodeRules With(Change change) {
    CourseCodeRules rules = Rules();
    change(rules);
    return rules;
}

CourseCodeRules SplitAt(const char* text) {
    return With([text](CourseCodeRules& rules) {
        rules.UseSplitText = true;
        rules.SplitText = QString::fromUtf8(text);
    });
}

CourseCodeRules Converting() {
    return With([](CourseCodeRules& rules) { rules.ConvertGrade = true; });
}

GradeConversion Row(const char* symbol, const char* actual) {
    return {QString::fromUtf8(symbol), QString::fromUtf8(actual)};
}

const SplitCase Cases[] = {
    {"positions", "ENG1D1-01", Rules(), {}, "ENG", "01", "1"},
    {"empty code", "", Rules(), {}, "", "", ""},
    {"code of one character", "E", Rules(), {}, "E", "", ""},
    {"start at the last character", "ENG1D1-0", Rules(), {}, "ENG", "0", "1"},
    {"start one beyond the end", "ENG1D1-", Rules(), {}, "ENG", "", "1"},
    {"course starts beyond the end", "ENG1D1-01", With([](auto& r) { r.CourseStart = 10; }), {}, "", "01", "1"},
    {"grade starts beyond the end", "ENG1D1-01", With([](auto& r) { r.GradeStart = 10; }), {}, "ENG", "01", ""},
    {"grade runs past the end",
     "ENG1D1-01",
     With([](auto& r) {
         r.GradeStart = 9;
         r.GradeLength = 20;
     }),
     {},
     "ENG",
     "01",
     "1"},
    {"course runs past the end", "EN", With([](auto& r) { r.CourseLength = 20; }), {}, "EN", "", ""},
    {"parts may overlap",
     "ENG1D1-01",
     With([](auto& r) {
         r.CourseLength = 9;
         r.SectionStart = 1;
         r.SectionLength = 4;
     }),
     {},
     "ENG1D1-01",
     "ENG1",
     "1"},
    {"split character", "ENG1D1-01", SplitAt("-"), {}, "ENG1D1", "01", "1"},
    {"split character comes first", "-ENG1", SplitAt("-"), {}, "", "ENG1", "G"},
    {"split character comes last", "ENG1-", SplitAt("-"), {}, "ENG1", "", "1"},
    {"the first of two separators counts", "EN-G-1", SplitAt("-"), {}, "EN", "G-1", "G"},
    {"separator does not occur", "ENG1D1/01", SplitAt("-"), {}, "", "", "1"},
    {"empty separator counts as found at position 1", "ENG1D1-01", SplitAt(""), {}, "", "NG1D1-01", "1"},
    {"empty separator, code of one character", "E", SplitAt(""), {}, "", "", ""},
    {"empty separator, empty code", "", SplitAt(""), {}, "", "", ""},
    {"a longer separator still skips one character", "ENG1--01", SplitAt("--"), {}, "ENG1", "-01", "1"},
    {"a longer separator must be found whole", "ENG1-01", SplitAt("--"), {}, "", "", "1"},
    {"case of the separator counts", "ENGX1", SplitAt("x"), {}, "", "", "X"},
    {"separator of letters", "ENGX1", SplitAt("X"), {}, "ENG", "1", "X"},
    {"positions play no part with a separator",
     "A-B",
     With([](auto& r) {
         r.UseSplitText = true;
         r.SplitText = QStringLiteral("-");
         r.CourseStart = r.SectionStart = 20;
     }),
     {},
     "A",
     "B",
     ""},
    {"conversion", "ENG1D1-01", Converting(), {Row("1", "9")}, "ENG", "01", "9"},
    {"conversion with a separator",
     "ENG1D1-01",
     With([](auto& r) { r.ConvertGrade = r.UseSplitText = true; }),
     {Row("1", "9")},
     "ENG1D1",
     "01",
     "9"},
    {"conversion off", "ENG1D1-01", Rules(), {Row("1", "9")}, "ENG", "01", "1"},
    {"no row matches", "ENG1D1-01", Converting(), {Row("2", "10"), Row("11", "x")}, "ENG", "01", "1"},
    {"the first matching row wins",
     "ENG1",
     Converting(),
     {Row("2", "8"), Row("1", "9"), Row("1", "7")},
     "ENG",
     "",
     "9"},
    {"a row without an actual grade is skipped", "ENG1", Converting(), {Row("1", ""), Row("1", "9")}, "ENG", "", "9"},
    {"a row without an actual grade alone", "ENG1", Converting(), {Row("1", "")}, "ENG", "", "1"},
    {"a row without a symbol is skipped", "ENG1", Converting(), {Row("", "12")}, "ENG", "", "1"},
    {"no grade is never converted", "ENG", Converting(), {Row("", "12")}, "ENG", "", ""},
    {"case of the symbol does not count", "ENGA", Converting(), {Row("a", "k")}, "ENG", "", "k"},
    {"case of the code does not count", "ENGé", Converting(), {Row("É", "9")}, "ENG", "", "9"},
    {"the result is not converted again", "ENG1", Converting(), {Row("1", "2"), Row("2", "3")}, "ENG", "", "2"},
    {"only the whole grade matches",
     "ENG12",
     With([](auto& r) {
         r.ConvertGrade = true;
         r.GradeLength = 2;
     }),
     {Row("1", "x"), Row("12", "y")},
     "ENG",
     "",
     "y"},
    {"the last row counts",
     "ENG1",
     Converting(),
     {Row("a", "0"), Row("b", "0"), Row("c", "0"), Row("d", "0"), Row("e", "0"), Row("1", "6")},
     "ENG",
     "",
     "6"},
};

TEST(CourseCodeRules, Split) {
    for (const SplitCase& row : Cases) {
        const CourseCodeParts parts = SplitCourseCode(QString::fromUtf8(row.Code), row.Rules, row.Conversions);
        EXPECT_EQ(parts.Course.toStdString(), row.Course) << row.Name;
        EXPECT_EQ(parts.Section.toStdString(), row.Section) << row.Name;
        EXPECT_EQ(parts.Grade.toStdString(), row.Grade) << row.Name;
    }
}

TEST(CourseCodeRules, AZeroAnywhereEmptiesAllPartsInBothModes) {
    const std::array<int CourseCodeRules::*, 6> members = {
        &CourseCodeRules::CourseStart,   &CourseCodeRules::CourseLength, &CourseCodeRules::SectionStart,
        &CourseCodeRules::SectionLength, &CourseCodeRules::GradeStart,   &CourseCodeRules::GradeLength};
    for (const bool useSplitText : {false, true}) {
        for (std::size_t i = 0; i < members.size(); ++i) {
            for (const int off : {0, -1}) {
                CourseCodeRules rules = Rules();
                rules.UseSplitText = useSplitText;
                rules.*members[i] = off;
                EXPECT_EQ(SplitCourseCode(QStringLiteral("ENG1D1-01"), rules, {}), CourseCodeParts())
                    << "rule " << i << " at " << off << ", split text " << useSplitText;
                rules.*members[i] = 1;
                EXPECT_NE(SplitCourseCode(QStringLiteral("ENG1D1-01"), rules, {}), CourseCodeParts());
            }
        }
    }
}

TEST(CourseCodeRules, HighestPositionsWork) {
    const QString code = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJKLMN");
    const CourseCodeParts parts = SplitCourseCode(code, {20, 20, 20, 20, 20, 20, false, {}, false}, {});
    EXPECT_EQ(parts.Course, QStringLiteral("TUVWXYZABCDEFGHIJKLM"));
    EXPECT_EQ(parts.Section, parts.Course);
    EXPECT_EQ(parts.Grade, parts.Course);
}

TEST(CourseCodeRules, StoredValuesOutsideTheListsAreShownAsZero) {
    struct {
        std::int16_t Stored;
        int Shown;
    } const cases[] = {{0, 0}, {1, 1}, {20, 20}, {21, 0}, {-1, 0}, {32767, 0}, {-32768, 0}};
    for (const auto& row : cases) {
        EXPECT_EQ(ShownRuleValue(row.Stored), row.Shown) << row.Stored;
    }
}

TEST(CourseCodeRules, StoredValuesOutsideTheListsAreKeptUntilTheUserChooses) {
    struct {
        std::int16_t Stored;
        int Shown;
        bool Chosen;
        std::int16_t Saved;
    } const cases[] = {{5, 5, false, 5},   {5, 7, true, 7},     {5, 0, true, 0},  {0, 0, false, 0},
                       {25, 0, false, 25}, {-3, 0, false, -3},  {25, 4, true, 4}, {25, 0, true, 0},
                       {21, 20, true, 20}, {20, 20, false, 20}, {20, 3, false, 3}};
    for (const auto& row : cases) {
        EXPECT_EQ(RuleValueToStore(row.Stored, row.Shown, row.Chosen), row.Saved) << row.Stored << " " << row.Shown;
    }
}

} // namespace
