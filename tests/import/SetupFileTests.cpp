#include "import/SetupFile.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Text.h"

#include <gtest/gtest.h>

namespace {

ImportSetup ThreeFields() {
    ImportSetup setup;
    setup.ActiveFields = 3;
    setup.Matches[1] = Text("Student Number");
    setup.Matches[2] = Text("Last Name");
    setup.Matches[3] = Text("First Name");
    setup.Options.Actions = {1, 0, 0, 1};
    setup.Options.Fields = {0, 0, 1, 0, 0, 1, 0, 0, 0, 1, 0, 0};
    return setup;
}

ImportSetup AllFields() {
    ImportSetup setup;
    setup.ActiveFields = 24;
    const FieldList fields = EnglishFieldList();
    for (int match = 1; match <= 24; ++match) {
        setup.Matches[static_cast<std::size_t>(match)] = fields.Caption(std::min(match, IgnoreField), 4);
    }
    setup.Matches[0] = Text("4");
    setup.Options.Actions = {0, 1, 0, 0};
    setup.Options.Fields = {1, 0, 0, 1, 0, 0, 1, 0, 0, 0, 1, 1};
    return setup;
}

TEST(WriteSetupTest, GivesTheHandWrittenBytes) {
    EXPECT_EQ(HandWritten("import/UpdField-three.cfg"), WriteSetup(ThreeFields()));
    EXPECT_EQ(HandWritten("import/UpdField-none.cfg"), WriteSetup(ImportSetup()));
    EXPECT_EQ(HandWritten("import/UpdField-full.cfg"), WriteSetup(AllFields()));
}

TEST(WriteSetupTest, LeavesEntriesBeyondTheCountOut) {
    ImportSetup setup = ThreeFields();
    setup.Matches[0] = Text("5");
    setup.Matches[4] = Text("Gender");
    EXPECT_EQ(HandWritten("import/UpdField-three.cfg"), WriteSetup(setup));
}

TEST(WriteSetupTest, WritesTheCodePage) {
    ImportSetup setup;
    setup.ActiveFields = 1;
    setup.Matches[1] = Text("Téléphone N°1 €");
    EXPECT_TRUE(WriteSetup(setup).contains("Field1=T\xE9l\xE9phone N\xB0"
                                           "1 \x80\r\n"));
}

TEST(ReadSetupTest, GivesBackWhatWasWritten) {
    for (const char* name : {"import/UpdField-three.cfg", "import/UpdField-none.cfg", "import/UpdField-full.cfg"}) {
        const QByteArray bytes = HandWritten(name);
        ImportSetup setup;
        EXPECT_TRUE(ReadSetup(bytes, setup)) << name;
        EXPECT_TRUE(CheckMatches(setup, EnglishFieldList()).empty()) << name;
        EXPECT_EQ(bytes, WriteSetup(setup)) << name;
    }
}

struct MatchCase {
    const char* bytes;
    int match;
    const char* entry;
};

constexpr MatchCase MatchCases[] = {
    {"Field1=Last Name\r\n", 1, "Last Name"},
    {"field2=last name", 2, "last name"},
    {"FIELD24=x", 24, "x"},
    {"Field25=x\nField24=y", 24, "y"},
    {"Field1=a\rField1=b\r", 1, "b"},
    {"Field1 =x\n", 1, "old"},
    {" Field1=x\n", 1, "old"},
    {"=Field1=x\n", 1, "old"},
    {"[Field1=x\n", 1, "old"},
    {";Field1=x\n", 1, "old"},
    {"Field1\n", 1, "old"},
    {"Field01=x\n", 1, "old"},
    {"Field0=x\n", 0, "old"},
    {"Field=x\n", 1, "old"},
    {"Fields1=x\n", 1, "old"},
    {"Field1=  x  \n", 1, "  x  "},
    {"Field1=a=b\n", 1, "a=b"},
    {"Field1=\n", 1, ""},
    {"\r\n\r\nField1=x\r\n\r\n", 1, "x"},
    {"Field1=\xE9\x80\x81\n", 1, "é€\xC2\x81"},
};

TEST(ReadSetupTest, TakesMatchEntriesByTheirKeys) {
    for (const MatchCase& row : MatchCases) {
        ImportSetup setup;
        setup.Matches.fill(Text("old"));
        EXPECT_TRUE(ReadSetup(row.bytes, setup)) << row.bytes;
        EXPECT_EQ(Text(row.entry), setup.Matches[static_cast<std::size_t>(row.match)]) << row.bytes;
    }
}

TEST(ReadSetupTest, TakesEachNumberToItsPlace) {
    const char* const actions[] = {"AddNames", "reactivate", "DELETENAMES", "ConfirmDelete"};
    for (std::size_t i = 0; i < 4; ++i) {
        ImportSetup setup;
        ASSERT_TRUE(ReadSetup(QByteArray(actions[i]) + "= 7x", setup));
        UpdateOptions expected;
        expected.Actions[i] = 7;
        EXPECT_EQ(expected, setup.Options) << actions[i];
    }
    const char* const fields[] = {"LastName",     "FirstName",   "Gender",        "Program",
                                  "HomeForm",     "DateOfBirth", "Phone1",        "Phone2",
                                  "StudentEMail", "ParentEMail", "Miscellaneous", "SpecialUse"};
    for (std::size_t i = 0; i < 12; ++i) {
        ImportSetup setup;
        ASSERT_TRUE(ReadSetup(QByteArray(fields[i]) + "=1.5\r\n", setup));
        UpdateOptions expected;
        expected.Fields[i] = 2;
        EXPECT_EQ(expected, setup.Options) << fields[i];
    }
}

TEST(ReadSetupTest, ReadsTextInPlaceOfANumberAsZero) {
    ImportSetup setup = ThreeFields();
    EXPECT_TRUE(ReadSetup("ActiveFields=many\nAddNames=yes\nLastName=\n", setup));
    EXPECT_EQ(0, setup.ActiveFields);
    EXPECT_EQ(0, setup.Options.Actions[0]);
}

TEST(ReadSetupTest, StopsAtANumberThatDoesNotFit) {
    ImportSetup setup;
    EXPECT_FALSE(ReadSetup("ActiveFields=2\nField1=a\nAddNames=40000\nField2=b\n", setup));
    EXPECT_EQ(2, setup.ActiveFields);
    EXPECT_EQ(Text("a"), setup.Matches[1]);
    EXPECT_EQ(QString(), setup.Matches[2]);
}

TEST(KeepYesOrNoTest, TurnsEveryOtherValueToNo) {
    UpdateOptions options;
    options.Actions = {7, 1, -1, 2};
    options.Fields = {1, 2, 0, -1, 1, 9, 1, 1, 1, 1, 1, 32767};
    KeepYesOrNo(options);
    const UpdateOptions expected = {{0, 1, 0, 0}, {1, 0, 0, 0, 1, 0, 1, 1, 1, 1, 1, 0}};
    EXPECT_EQ(expected, options);
}

struct PathCase {
    const char* path;
    const char* setupFile;
};

constexpr PathCase PathCases[] = {
    {"c:\\marks\\students.txt", "c:\\marks\\UpdField.cfg"},
    {"c:\\students.txt", "c:\\UpdField.cfg"},
    {"c:\\Marks\\A B\\s", "c:\\Marks\\A B\\UpdField.cfg"},
    {"\\\\s", "\\\\UpdField.cfg"},
    {"\\students.txt", ""},
    {"students.txt", ""},
    {"c:students.txt", ""},
    {"", ""},
};

TEST(SetupFileBesideTest, TakesTheImportFilesFolder) {
    for (const PathCase& row : PathCases) {
        EXPECT_EQ(Text(row.setupFile), SetupFileBeside(Text(row.path), Text("UpdField.cfg"))) << row.path;
    }
}

} // namespace
