#include "import/FieldMatching.h"
#include "tests/support/Text.h"

#include <gtest/gtest.h>

namespace {

FieldMatching WithRows(int rows) {
    FieldMatching matching;
    matching.SetRowCount(rows);
    return matching;
}

bool Match(FieldMatching& matching, int field) {
    matching.Choose(field);
    return matching.MatchChosen();
}

QStringList Names(const FieldMatching& matching) {
    QStringList names;
    for (int row = 1; row <= matching.MatchCount(); ++row) {
        names.append(matching.Name(row));
    }
    return names;
}

TEST(FieldMatchingTest, MatchesRowAfterRowUntilNoneIsLeft) {
    FieldMatching matching = WithRows(3);
    EXPECT_TRUE(Match(matching, LastNameField));
    EXPECT_TRUE(Match(matching, FirstNameField));
    EXPECT_TRUE(Match(matching, IgnoreField));
    EXPECT_FALSE(Match(matching, IgnoreField));
    EXPECT_FALSE(Match(matching, 4));
    EXPECT_EQ(QStringList({Text("Last Name"), Text("First Name"), Text("Ignore this field")}), Names(matching));
    EXPECT_FALSE(matching.IsUsed(4));
}

TEST(FieldMatchingTest, UsesEachFieldOnceExceptIgnore) {
    for (int field = 1; field <= FieldCount; ++field) {
        FieldMatching matching = WithRows(24);
        matching.Choose(ImportIf1Field);
        if (field == ImportIf2Field) {
            ASSERT_TRUE(matching.MatchChosen());
        }
        ASSERT_TRUE(Match(matching, field));
        EXPECT_EQ(field != IgnoreField, matching.IsUsed(field)) << field;
        const int before = matching.MatchCount();
        EXPECT_EQ(field == IgnoreField, Match(matching, field)) << field;
        EXPECT_EQ(field == IgnoreField ? before + 1 : before, matching.MatchCount()) << field;
    }
}

TEST(FieldMatchingTest, NeedsAChosenField) {
    FieldMatching matching = WithRows(2);
    EXPECT_FALSE(matching.MatchChosen());
    EXPECT_FALSE(matching.Drop());
    EXPECT_EQ(0, matching.MatchCount());
}

TEST(FieldMatchingTest, ForgetsTheFieldAtADrop) {
    FieldMatching matching = WithRows(4);
    matching.Choose(IgnoreField);
    EXPECT_TRUE(matching.Drop());
    EXPECT_FALSE(matching.Drop());
    EXPECT_EQ(1, matching.MatchCount());
    matching.Choose(IgnoreField);
    EXPECT_TRUE(matching.Drop());
    EXPECT_EQ(2, matching.MatchCount());
}

TEST(FieldMatchingTest, ForgetsTheFieldAtADropWithoutARow) {
    FieldMatching matching = WithRows(0);
    matching.Choose(IgnoreField);
    EXPECT_FALSE(matching.Drop());
    matching.SetRowCount(1);
    EXPECT_FALSE(matching.Drop());
}

TEST(FieldMatchingTest, TakesImportIf1Before2) {
    FieldMatching matching = WithRows(4);
    EXPECT_EQ(ImportIf1Field, matching.Choose(ImportIf2Field));
    EXPECT_TRUE(matching.MatchChosen());
    EXPECT_EQ(ImportIf2Field, matching.Choose(ImportIf2Field));
    EXPECT_TRUE(matching.MatchChosen());
    EXPECT_EQ(QStringList({Text("Import If #1"), Text("Import If #2")}), Names(matching));
    EXPECT_EQ(ImportIf1Field, matching.Choose(ImportIf1Field));
}

TEST(FieldMatchingTest, ClearLastFreesItsField) {
    FieldMatching matching = WithRows(4);
    Match(matching, LastNameField);
    Match(matching, IgnoreField);
    Match(matching, DobField);
    EXPECT_TRUE(matching.ClearLast());
    EXPECT_FALSE(matching.IsUsed(DobField));
    EXPECT_TRUE(matching.ClearLast());
    EXPECT_TRUE(matching.IsUsed(LastNameField));
    EXPECT_EQ(QString(), matching.Name(2));
    EXPECT_TRUE(matching.ClearLast());
    EXPECT_FALSE(matching.IsUsed(LastNameField));
    EXPECT_FALSE(matching.ClearLast());
    EXPECT_EQ(0, matching.MatchCount());
}

TEST(FieldMatchingTest, ClearAllFreesEverything) {
    FieldMatching matching = WithRows(4);
    Match(matching, LastNameField);
    Match(matching, DobField);
    matching.ClearAll();
    EXPECT_EQ(0, matching.MatchCount());
    for (int field = 1; field <= FieldCount; ++field) {
        EXPECT_FALSE(matching.IsUsed(field)) << field;
    }
    EXPECT_EQ(QString(), matching.Name(1));
}

TEST(FieldMatchingTest, AnotherFormatRenamesTheBirthDate) {
    FieldMatching matching = WithRows(4);
    Match(matching, LastNameField);
    Match(matching, DobField);
    EXPECT_EQ(Text("DOB (Year/Mth/Day)"), matching.Name(2));
    matching.SetDobFormat(4);
    EXPECT_EQ(Text("DOB (MMDDYear)"), matching.Name(2));
    EXPECT_EQ(Text("DOB (MMDDYear)"), matching.Caption(DobField));
    EXPECT_EQ(Text("Last Name"), matching.Name(1));
    EXPECT_TRUE(matching.HasMatch(DobField));
    matching.ClearLast();
    EXPECT_FALSE(matching.IsUsed(DobField));
}

MatchList Stored(const QStringList& entries) {
    MatchList matches;
    std::copy(entries.begin(), entries.end(), matches.begin());
    return matches;
}

TEST(FieldMatchingTest, ShowsAStoredSetup) {
    FieldMatching matching = WithRows(5);
    matching.ShowStored(Stored({Text("4"), Text("Last Name"), Text("dob (MMDDYear)"), Text("Ignore this field"),
                                Text("First Name"), Text("Gender")}),
                        4);
    EXPECT_EQ(4, matching.DobFormat());
    EXPECT_EQ(4, matching.MatchCount());
    EXPECT_EQ(QStringList({Text("Last Name"), Text("dob (MMDDYear)"), Text("Ignore this field"), Text("First Name")}),
              Names(matching));
    for (int field = 1; field <= FieldCount; ++field) {
        EXPECT_EQ(field == LastNameField || field == DobField || field == FirstNameField, matching.IsUsed(field))
            << field;
    }
    EXPECT_TRUE(matching.HasMatch(LastNameField));
    EXPECT_FALSE(matching.HasMatch(4));
    matching.SetDobFormat(1);
    EXPECT_EQ(Text("DOB (Mth/Day/Year)"), matching.Name(2));
}

TEST(FieldMatchingTest, ClearLastFreesTheBirthDateWhateverItsEntrySays) {
    FieldMatching matching = WithRows(3);
    matching.ShowStored(Stored({Text("5"), Text("dob (YearMMDD)"), Text("DOB (DDMMYear)")}), 2);
    EXPECT_TRUE(matching.IsUsed(DobField));
    EXPECT_TRUE(matching.ClearLast());
    EXPECT_FALSE(matching.IsUsed(DobField));
    EXPECT_EQ(QStringList({Text("dob (YearMMDD)")}), Names(matching));
}

TEST(FieldMatchingTest, ShowsNoMoreMatchesThanRows) {
    FieldMatching matching = WithRows(2);
    matching.ShowStored(Stored({Text("9"), Text("Last Name"), Text("First Name"), Text("Gender")}), 3);
    EXPECT_EQ(2, matching.MatchCount());
    EXPECT_FALSE(matching.IsUsed(4));
    EXPECT_EQ(0, matching.DobFormat());
}

TEST(FieldListTest, ReadsFormatCodes) {
    const char* const texts[] = {"0", "1", "2", "3", "4", "5"};
    for (int code = 0; code < 6; ++code) {
        EXPECT_EQ(code, DobFormatOf(Text(texts[code])));
    }
    for (const char* text : {"", "6", "9", "-1", " 4", "4 ", "04", "x", "٤"}) {
        EXPECT_EQ(0, DobFormatOf(Text(text))) << text;
    }
}

} // namespace
