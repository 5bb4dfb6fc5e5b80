#include "import/SetupFile.h"
#include "tests/support/Text.h"

#include <gtest/gtest.h>

namespace {

struct Checked {
    ImportSetup setup;
    std::vector<SetupFault> faults;
};

Checked Check(const char* bytes, const FieldList& fields = EnglishFieldList()) {
    Checked result;
    EXPECT_TRUE(ReadSetup(bytes, result.setup));
    result.faults = CheckMatches(result.setup, fields);
    return result;
}

QString Entry(const Checked& checked, std::size_t match) {
    return checked.setup.Matches[match];
}

struct GoodCase {
    const char* given;
    const char* kept;
    const char* code;
};

constexpr GoodCase GoodCases[] = {
    {"Last Name", "Last Name", ""},
    {"last name", "Last Name", ""},
    {"  FIRST NAME ", "First Name", ""},
    {"program", "Program", ""},
    {"GENDER", "Gender", ""},
    {"home FORM", "Home Form", ""},
    {"student number", "Student Number", ""},
    {"phone #1", "Phone #1", ""},
    {"phone #2", "Phone #2", ""},
    {"student E-MAIL", "Student e-mail", ""},
    {"parent E-MAIL", "Parent e-mail", ""},
    {"miscellaneous", "Miscellaneous", ""},
    {"import if #1", "Import If #1", ""},
    {"import if #2", "Import If #2", ""},
    {"special use", "Special Use", ""},
    {"ignore THIS field", "Ignore this field", ""},
    {"DOB (Year/Mth/Day)", "DOB (Year/Mth/Day)", "0"},
    {"DOB (Mth/Day/Year)", "DOB (Mth/Day/Year)", "1"},
    {"DOB (Day/Mth/Year)", "DOB (Day/Mth/Year)", "2"},
    {"DOB (YearMMDD)", "DOB (YearMMDD)", "3"},
    {"dob (MMDDYear)", "dob (MMDDYear)", "4"},
    {" Dob (DDMMYear) ", "Dob (DDMMYear)", "5"},
};

TEST(CheckMatchesTest, GivesEveryFieldTheListsSpelling) {
    for (const GoodCase& row : GoodCases) {
        const Checked checked = Check(QByteArray("ActiveFields=1\nField1=").append(row.given).constData());
        EXPECT_TRUE(checked.faults.empty()) << row.given;
        EXPECT_EQ(Text(row.kept), Entry(checked, 1)) << row.given;
        EXPECT_EQ(Text(row.code), Entry(checked, 0)) << row.given;
    }
}

struct BadCase {
    const char* given;
    const char* message;
};

constexpr BadCase BadCases[] = {
    {"Surname", "Surname is not a valid field name."},
    {"", " is not a valid field name."},
    {"DOB", "DOB is not a valid field name."},
    {"DOB(YearMMDD)", "DOB(YearMMDD) is not a valid field name."},
    {"Prénom", "Prénom is not a valid field name."},
    {"DOB (Yr/Mth/Day)", "Invalid DOB format: DOB (Yr/Mth/Day)"},
    {"DOB (year/mth/day)", "Invalid DOB format: DOB (year/mth/day)"},
    {"DOB (YearMMDD) x", "Invalid DOB format: DOB (YearMMDD) x"},
    {"DOB ( YearMMDD)", "Invalid DOB format: DOB ( YearMMDD)"},
    {"DOB (", "Invalid DOB format: DOB ("},
};

TEST(CheckMatchesTest, ReplacesABadEntry) {
    for (const BadCase& row : BadCases) {
        ImportSetup setup;
        setup.ActiveFields = 2;
        setup.Matches[1] = Text("Gender");
        setup.Matches[2] = Text(row.given);
        const std::vector<SetupFault> faults = CheckMatches(setup, EnglishFieldList());
        ASSERT_EQ(1U, faults.size()) << row.given;
        EXPECT_EQ(Text("FIELD MATCH ERROR"), faults[0].Title);
        EXPECT_EQ(Text(row.message) + Text("\n\nMatch Field #2 has been changed to 'Ignore this field'."),
                  faults[0].Text);
        EXPECT_EQ(Text("Ignore this field"), setup.Matches[2]) << row.given;
        EXPECT_EQ(QString(), setup.Matches[0]) << row.given;
    }
}

TEST(CheckMatchesTest, ReportsDuplicatesInTheOrderOfTheList) {
    const Checked checked = Check("ActiveFields=5\nField1=Last Name\nField2=nobody\nField3=last NAME\n"
                                  "Field4=Ignore this field\nField5=IGNORE this field\n");
    ASSERT_EQ(2U, checked.faults.size());
    EXPECT_EQ(Text("nobody is not a valid field name.\n\nMatch Field #2 has been changed to 'Ignore this field'."),
              checked.faults[0].Text);
    EXPECT_EQ(Text("Duplicate Match Fields: last NAME\n\nMatch Field #3 has been changed to 'Ignore this field'."),
              checked.faults[1].Text);
    EXPECT_EQ(Text("Last Name"), Entry(checked, 1));
    for (const std::size_t match : {2U, 3U, 4U, 5U}) {
        EXPECT_EQ(Text("Ignore this field"), Entry(checked, match));
    }
}

TEST(CheckMatchesTest, TakesTheCodeOfTheLastValidBirthDate) {
    const Checked checked = Check("ActiveFields=3\nField1=DOB (YearMMDD)\nField2=DOB (DDMMYear)\nField3=DOB (never)\n");
    EXPECT_EQ(1U, checked.faults.size());
    EXPECT_EQ(Text("5"), Entry(checked, 0));
    EXPECT_EQ(Text("DOB (YearMMDD)"), Entry(checked, 1));
    EXPECT_EQ(Text("DOB (DDMMYear)"), Entry(checked, 2));
}

TEST(CheckMatchesTest, ChecksOnlyTheEntriesInUse) {
    const Checked checked = Check("ActiveFields=3\nField1=Last Name\nField2=First Name\nField3=Gender\n"
                                  "Field4=Last Name\nField5=wrong\n");
    EXPECT_TRUE(checked.faults.empty());
    EXPECT_EQ(3, checked.setup.ActiveFields);
    EXPECT_EQ(Text("wrong"), Entry(checked, 5));
}

TEST(CheckMatchesTest, EmptiesTheListAfterABadCount) {
    for (const char* count : {"25", "-1", "24.6", "32767"}) {
        QByteArray bytes = QByteArray("ActiveFields=") + count + "\n";
        for (int match = 1; match <= 25; ++match) {
            bytes += "Field" + QByteArray::number(match) + "=Ignore this field\n";
        }
        const Checked checked = Check(bytes.constData());
        ASSERT_EQ(1U, checked.faults.size()) << count;
        EXPECT_EQ(Text("FIELD MATCH COUNT ERROR"), checked.faults[0].Title);
        EXPECT_EQ(Text("The number of fields to be matched must be from 0 to 24"), checked.faults[0].Text);
        EXPECT_EQ(0, checked.setup.ActiveFields);
        for (const QString& entry : checked.setup.Matches) {
            EXPECT_EQ(QString(), entry);
        }
    }
}

TEST(CheckMatchesTest, TakesACountFrom0To24) {
    for (const char* count : {"0", "24", "24.5", "-0.5"}) {
        ImportSetup setup;
        setup.Matches.fill(Text("Ignore this field"));
        ASSERT_TRUE(ReadSetup(QByteArray("ActiveFields=") + count, setup));
        EXPECT_TRUE(CheckMatches(setup, EnglishFieldList()).empty()) << count;
    }
}

TEST(CheckMatchesTest, RefusesFrenchNamesInTheEnglishList) {
    const FieldList french = FrenchFieldList();
    for (int field = 1; field <= FieldCount; ++field) {
        if (french.Caption(field, 0) == EnglishFieldList().Caption(field, 0)) {
            continue;
        }
        ImportSetup setup;
        setup.ActiveFields = 1;
        setup.Matches[1] = french.Caption(field, 0);
        EXPECT_EQ(1U, CheckMatches(setup, EnglishFieldList()).size()) << field;
    }
}

} // namespace
