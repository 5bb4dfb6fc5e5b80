#include "tests/app/ConfigTextFixture.h"

namespace {

TEST_F(ConfigText, EveryFieldIsReadIntoItsPlace) {
    ItemError error;
    const ProgramConfigRecord config = Read(File, &error);
    EXPECT_FALSE(error);
    EXPECT_EQ(config, EveryField());
}

TEST_F(ConfigText, EveryFieldIsWrittenToItsPlace) {
    EXPECT_EQ(WriteConfigText(EveryField(), TitleLine), File);
}

TEST_F(ConfigText, DefaultsAreWrittenAsByHand) {
    EXPECT_EQ(WriteConfigText(Defaults, TitleLine), HandWritten("app/defaults.cfg"));
}

TEST_F(ConfigText, ReadAndWrittenAgainIsTheSame) {
    EXPECT_EQ(WriteConfigText(Read(File), TitleLine), File);
}

TEST_F(ConfigText, FrenchEditionNamesItsAdminFolder) {
    SetProductTexts(Edition::French);
    SetTitleLine(2016);
    const QByteArray french = HandWritten("app/every-field-french.cfg");
    EXPECT_EQ(WriteConfigText(EveryField(), TitleLine), french);
    EXPECT_EQ(Read(french), EveryField());
}

TEST_F(ConfigText, OtherLineEndsReadAlike) {
    EXPECT_EQ(Read(QByteArray(File).replace("\r\n", "\n")), EveryField());
    EXPECT_EQ(Read(QByteArray(File).replace("\r\n", "\r")), EveryField());
    EXPECT_EQ(Read(File.chopped(2)), EveryField()) << "no end of the last line";
}

TEST_F(ConfigText, WhatFollowsTheLastSectionIsLeftAlone) {
    ItemError error;
    EXPECT_EQ(Read(File + "\"[A later section]\"\r\n\"x\r\n", &error), EveryField());
    EXPECT_FALSE(error);
}

struct LockLine {
    const char* line;
    std::int16_t lock;
};

TEST_F(ConfigText, LockLine) {
    for (const auto& [line, lock] :
         {LockLine{"Program Config Lock=ON", 1}, LockLine{"Program Config Lock=on", 1},
          LockLine{"Program Config Lock=On", 1}, LockLine{"ON", 1}, LockLine{"", 1}, LockLine{"N", 1},
          LockLine{"\"\"", 1}, LockLine{"Program Config Lock=OFF", 0}, LockLine{"Program Config Lock=NO", 0},
          LockLine{"xx", 0}, LockLine{"\"Program Config Lock=ON\"", 1}}) {
        EXPECT_EQ(Read(With("Program Config Lock=OFF", line)).ConfigLock, lock) << line;
    }
}

TEST_F(ConfigText, StoredStartMonthNeverSurvives) {
    EXPECT_EQ(Read(With("[School Year Start Month]\r\n 1 ", "[School Year Start Month]\r\n 9 ")).SchoolYearStartMonth,
              1);
}

// A file of an earlier version: its first sections, the rest at their defaults.
TEST_F(ConfigText, SectionCountDecidesWhatIsRead) {
    for (int count = 0; count <= 14; ++count) {
        const QByteArray changed = With("\r\n 14 \r\n", "\r\n " + QByteArray::number(count) + " \r\n");
        ItemError error;
        ProgramConfigRecord config = Read(changed, &error);
        EXPECT_FALSE(error) << count;
        EXPECT_EQ(config.ConfigLock, 0) << count;
        ProgramConfigRecord all = EveryField();
        ProgramConfigRecord defaults = Defaults;
        EXPECT_EQ(config.BarCodeFontName, (count > 0 ? all : defaults).BarCodeFontName) << count;
        EXPECT_EQ(config.PathToWordProcessor, (count > 1 ? all : defaults).PathToWordProcessor) << count;
        EXPECT_EQ(config.PathToAdmin, (count > 2 ? all : defaults).PathToAdmin) << count;
        EXPECT_EQ(config.ImportFields, (count > 3 ? all : defaults).ImportFields) << count;
        EXPECT_EQ(config.DateFormat, (count > 4 ? all : defaults).DateFormat) << count;
        EXPECT_EQ(config.PrinterDialogBox, (count > 5 ? all : defaults).PrinterDialogBox) << count;
        EXPECT_EQ(config.WidthOfThickLines, (count > 7 ? all : defaults).WidthOfThickLines) << count;
        EXPECT_EQ(config.RuleGActual, (count > 8 ? all : defaults).RuleGActual) << count;
        EXPECT_EQ(config.StudentPhotoExtension, (count > 9 ? all : defaults).StudentPhotoExtension) << count;
        EXPECT_EQ(config.SMTPHostName, (count > 10 ? all : defaults).SMTPHostName) << count;
        EXPECT_EQ(config.HTMLPath, (count > 11 ? all : defaults).HTMLPath) << count;
        EXPECT_EQ(config.BackupDestinationPath, (count > 12 ? all : defaults).BackupDestinationPath) << count;
        EXPECT_EQ(config.AECourseCodeSplitCharacter, (count > 13 ? all : defaults).AECourseCodeSplitCharacter) << count;
    }
}

TEST_F(ConfigText, OddSectionCounts) {
    struct Case {
        const char* count;
        int error;
        bool readsSections;
    };
    for (const auto& [count, number, reads] :
         {Case{"15", 0, true}, Case{"32767", 0, true}, Case{"-1", 0, false}, Case{"\"14\"", 0, true},
          Case{"32768", 6, false}, Case{"many", 13, false}, Case{"", 13, false}, Case{"1.5", 13, false},
          Case{"-32769", 6, false}}) {
        ItemError error;
        const ProgramConfigRecord config = Read(With("\r\n 14 \r\n", QByteArray("\r\n") + count + "\r\n"), &error);
        EXPECT_EQ(error.Error.Number, number) << count;
        EXPECT_EQ(error.Line, number == 0 ? 0 : 10) << count;
        EXPECT_EQ(config.ConfigLock, number == 0 ? 0 : 1) << count;
        EXPECT_EQ(config.DefaultPath, EveryField().DefaultPath) << count;
        EXPECT_EQ(config.SMTPHostName, reads ? EveryField().SMTPHostName : QString()) << count;
    }
}

TEST_F(ConfigText, CountsBeyondTheirListEndTheRead) {
    ItemError error;
    ProgramConfigRecord config = Read(With("\"Barres 39\"\r\n 2 ", "\"Barres 39\"\r\n 3 "), &error);
    EXPECT_EQ(error.Error.Number, 9);
    EXPECT_EQ(error.Line, 16);
    EXPECT_EQ(config.BarCodeFontName, QStringLiteral("Barres 39"));
    EXPECT_EQ(config.BarCodeDesc, Defaults.BarCodeDesc);
    EXPECT_EQ(config.ConfigLock, 1);

    config = Read(With("students.txt\"\r\n3\r\n", "students.txt\"\r\n25\r\n"), &error);
    EXPECT_EQ(error.Error.Number, 9);
    EXPECT_EQ(config.ImportStudentsFile, EveryField().ImportStudentsFile);
    EXPECT_EQ(config.ImportFieldLast, 0) << "a count beyond its list is not stored";
    EXPECT_EQ(config.ImportFields, Defaults.ImportFields);
}

TEST_F(ConfigText, CountsBelowZeroHaveNoItems) {
    QByteArray changed = With("3\r\n\"4\"\r\n\"Last Name\"\r\n\"First Name\"\r\n\"DOB (MMDDYear)\"\r\n", "-1\r\n");
    ItemError error;
    ProgramConfigRecord config = Read(changed, &error);
    EXPECT_FALSE(error);
    EXPECT_EQ(config.ImportFieldLast, -1);
    EXPECT_EQ(config.DateFormat, 6);
    EXPECT_EQ(WriteConfigText(config, TitleLine), changed);

    changed = With(" 2 \r\n\"Absent\",65\r\n\"En retard\",13\r\n\"Excus\xE9\",36\r\n", " -1 \r\n");
    config = Read(changed, &error);
    EXPECT_FALSE(error);
    EXPECT_EQ(config.PathToWordProcessor, EveryField().PathToWordProcessor);
}

TEST_F(ConfigText, AllTwentyFiveFieldsFit) {
    ProgramConfigRecord config = EveryField();
    config.ImportFieldLast = 24;
    for (std::size_t i = 0; i < config.ImportFields.size(); ++i) {
        config.ImportFields[i] = QStringLiteral("field %1").arg(i);
    }
    ItemError error;
    EXPECT_EQ(Read(WriteConfigText(config, TitleLine), &error), config);
    EXPECT_FALSE(error);
}

TEST_F(ConfigText, SignsAndBlanksAroundNumbersAreTaken) {
    struct Case {
        const char* text;
        std::int16_t value;
    };
    for (const auto& [text, value] : {Case{"+6", 6}, Case{"-6", -6}, Case{"   6   ", 6}, Case{"\" 6 \"", 6},
                                      Case{"0006", 6}, Case{"32767", 32767}, Case{"-32768", -32768}}) {
        EXPECT_EQ(Read(With("[Date Format]\r\n 6 ", QByteArray("[Date Format]\r\n") + text)).DateFormat, value) << text;
    }
}

TEST_F(ConfigText, EveryByteAbove127Survives) {
    QByteArray high;
    for (int byte = 128; byte < 256; ++byte) {
        high.append(static_cast<char>(byte));
    }
    const QByteArray changed = With("mail.school.example", high);
    const ProgramConfigRecord config = Read(changed);
    EXPECT_EQ(config.SMTPHostName.size(), 128);
    EXPECT_EQ(WriteConfigText(config, TitleLine), changed);
}

TEST_F(ConfigText, OneChangedFieldChangesOnlyItsBytes) {
    int fields = 0;
    const auto onlyOnePlace = [&](const char* name, const ProgramConfigRecord& config) {
        const QByteArray changed = WriteConfigText(config, TitleLine);
        const auto firsts = std::mismatch(File.begin(), File.end(), changed.begin(), changed.end());
        const auto lasts = std::mismatch(File.rbegin(), File.rend(), changed.rbegin(), changed.rend());
        EXPECT_LE(std::distance(firsts.second, lasts.second.base()), 8) << name;
        EXPECT_NE(changed, File) << name;
        EXPECT_EQ(Read(changed), config) << name;
        ++fields;
    };
    ProgramConfigRecord config = EveryField();
    ForEachValue(
        config,
        [&](const char* name, QString& value) {
            const bool unused = QLatin1String(name) == QLatin1String("ImportFields") && value.isEmpty();
            if (!unused) {
                const QString old = std::exchange(value, QStringLiteral("Changed"));
                onlyOnePlace(name, config);
                value = old;
            }
        },
        [&](const char* name, std::int16_t& value) {
            const QByteArray field = name;
            if (field != "SchoolYearStartMonth" && field != "ImportFieldLast") {
                const std::int16_t old = std::exchange(value, std::int16_t{-4321});
                onlyOnePlace(name, config);
                value = old;
            }
        });
    EXPECT_EQ(fields, 71);
}

TEST_F(ConfigText, CharactersTheCodePageLacksAreWrittenAsQuestionMarks) {
    ProgramConfigRecord config = EveryField();
    config.SMTPHostName = QString::fromUtf8("Ω😀x");
    EXPECT_TRUE(WriteConfigText(config, TitleLine).contains("\"??x\"\r\n"));
}

} // namespace
