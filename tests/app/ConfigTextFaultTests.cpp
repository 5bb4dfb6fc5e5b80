#include "tests/app/ConfigTextFixture.h"

namespace {

struct BadNumber {
    const char* text;
    int error;
};

constexpr BadNumber BadNumbers[] = {{"text", 13},
                                    {"\"\"", 13},
                                    {" ", 13},
                                    {"-", 13},
                                    {"+", 13},
                                    {"2.0", 13},
                                    {"1e3", 13},
                                    {"&H10", 13},
                                    {"5 5", 13},
                                    {"0x5", 13},
                                    {"32768", 6},
                                    {"-32769", 6},
                                    {"99999999999999999999", 6}};

// Every number field in turn is replaced by what is no number: the read ends there, what was read before stays.
TEST_F(ConfigText, NumbersThatDoNotParseEndTheRead) {
    int fields = 0;
    ProgramConfigRecord config = EveryField();
    const auto breakField = [&](const char* name, std::int16_t& value) {
        const QByteArray field = name;
        if (field == "ImportFieldLast") {
            return; // its own test: the value decides how many lines follow
        }
        ++fields;
        const std::int16_t old = std::exchange(value, std::int16_t{-4321});
        const QByteArray marked = WriteConfigText(config, TitleLine);
        value = old;
        ASSERT_EQ(marked.count("-4321"), 1) << name;
        const auto line = static_cast<int>(marked.left(marked.indexOf("-4321")).count('\n')) + 1;
        for (const auto& [text, number] : BadNumbers) {
            ItemError error;
            ProgramConfigRecord read = Read(QByteArray(marked).replace("-4321", text), &error);
            EXPECT_EQ(error.Error.Number, number) << name << " " << text;
            EXPECT_EQ(error.Line, line) << name << " " << text;
            EXPECT_EQ(read.ConfigLock, 1) << name << " " << text;
            EXPECT_EQ(read.DefaultPath, EveryField().DefaultPath) << name << " " << text;
            EXPECT_EQ(read.AECourseCodeSplitCharacter, Defaults.AECourseCodeSplitCharacter) << name << " " << text;
        }
    };
    ForEachValue(
        config, [](const char*, QString&) {}, breakField);
    EXPECT_EQ(fields, 19);
    for (const auto& [text, number] : BadNumbers) {
        ItemError error;
        const ProgramConfigRecord read =
            Read(With("students.txt\"\r\n3\r\n", QByteArray("students.txt\"\r\n") + text + "\r\n"), &error);
        EXPECT_EQ(error.Error.Number, number) << text;
        EXPECT_EQ(read.ImportStudentsFile, EveryField().ImportStudentsFile) << text;
        EXPECT_EQ(read.ImportFields, Defaults.ImportFields) << text;
    }
}

TEST_F(ConfigText, ACommaInTheTitleShiftsEveryItem) {
    ItemError error;
    Read(With("Config - 2016 CY", "Config, 2016 CY"), &error);
    EXPECT_TRUE(error);
}

TEST_F(ConfigText, UnclosedQuoteEndsTheRead) {
    ItemError error;
    const ProgramConfigRecord config = Read(With("\"mail.school.example\"", "\"mail.school.example"), &error);
    EXPECT_EQ(error.Error.Number, 75);
    EXPECT_EQ(config.SMTPHostName, QString());
    EXPECT_EQ(config.StudentPhotoExtension, QStringLiteral(".jpg"));
    EXPECT_EQ(config.ConfigLock, 1);
}

TEST_F(ConfigText, QuoteInsideAnItemKeepsTheItemsInStep) {
    ItemError error;
    const ProgramConfigRecord config = Read(With("\"mail.school.example\"", "\"mail\"school\""), &error);
    EXPECT_FALSE(error);
    EXPECT_EQ(config.SMTPHostName, QStringLiteral("mail"));
    EXPECT_EQ(config.HTMLSchool, QStringLiteral("S1"));
}

TEST_F(ConfigText, CutAfterEveryLine) {
    const QList<QByteArray> lines = Lines();
    QByteArray cut;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        ItemError error;
        const ProgramConfigRecord config = Read(cut, &error);
        EXPECT_EQ(error.Error.Number, 62) << "after line " << i;
        EXPECT_EQ(error.Line, i + 1);
        EXPECT_EQ(config.ConfigLock, 1);
        cut += lines[i];
    }
}

// Whatever byte the file ends at, each value is the whole one, the beginning of it, or the default.
TEST_F(ConfigText, CutAfterEveryByte) {
    ProgramConfigRecord whole = EveryField();
    QList<QString> texts;
    QList<std::int16_t> numbers;
    ForEachValue(
        whole, [&](const char*, QString& value) { texts.append(value); },
        [&](const char*, std::int16_t& value) { numbers.append(value); });
    QList<QString> defaultTexts;
    QList<std::int16_t> defaultNumbers;
    ForEachValue(
        Defaults, [&](const char*, QString& value) { defaultTexts.append(value); },
        [&](const char*, std::int16_t& value) { defaultNumbers.append(value); });
    for (qsizetype size = 0; size < File.size(); ++size) {
        ItemError error;
        ProgramConfigRecord config = Read(File.left(size), &error);
        EXPECT_TRUE(!error || config.ConfigLock == 1) << size;
        EXPECT_TRUE(error || size >= File.size() - 2) << size;
        int text = 0;
        int number = 0;
        ForEachValue(
            config,
            [&](const char* name, QString& value) {
                EXPECT_TRUE(texts[text].startsWith(value) || value == defaultTexts[text]) << name << " at " << size;
                ++text;
            },
            [&](const char* name, std::int16_t& value) {
                EXPECT_TRUE(QString::number(numbers[number]).startsWith(QString::number(value)) ||
                            value == defaultNumbers[number])
                    << name << " at " << size;
                ++number;
            });
    }
}

// Only the bytes of the changed field differ.

} // namespace
