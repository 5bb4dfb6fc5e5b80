#include "platform/CodePage.h"
#include "tests/support/Text.h"

#include <gtest/gtest.h>

namespace {

struct Assigned {
    int Byte;
    char16_t Character;
};

// The bytes 128 to 159 that are not the character of their own number.
constexpr Assigned Special[] = {
    {0x80, u'\u20AC'}, {0x82, u'\u201A'}, {0x83, u'\u0192'}, {0x84, u'\u201E'}, {0x85, u'\u2026'}, {0x86, u'\u2020'},
    {0x87, u'\u2021'}, {0x88, u'\u02C6'}, {0x89, u'\u2030'}, {0x8A, u'\u0160'}, {0x8B, u'\u2039'}, {0x8C, u'\u0152'},
    {0x8E, u'\u017D'}, {0x91, u'\u2018'}, {0x92, u'\u2019'}, {0x93, u'\u201C'}, {0x94, u'\u201D'}, {0x95, u'\u2022'},
    {0x96, u'\u2013'}, {0x97, u'\u2014'}, {0x98, u'\u02DC'}, {0x99, u'\u2122'}, {0x9A, u'\u0161'}, {0x9B, u'\u203A'},
    {0x9C, u'\u0153'}, {0x9E, u'\u017E'}, {0x9F, u'\u0178'}};

char16_t Expected(int byte) {
    for (const Assigned& row : Special) {
        if (row.Byte == byte) {
            return row.Character;
        }
    }
    return static_cast<char16_t>(byte);
}

} // namespace

TEST(CodePage, All256BytesSurviveAReadAndAWrite) {
    for (int byte = 0; byte < 256; ++byte) {
        const QByteArray bytes(1, static_cast<char>(byte));
        const QString text = TextFromBytes(bytes);
        ASSERT_EQ(text.size(), 1) << byte;
        EXPECT_EQ(text[0].unicode(), Expected(byte)) << byte;
        EXPECT_EQ(BytesFromText(text), bytes) << byte;
        EXPECT_TRUE(CodePageHas(text[0])) << byte;
    }
}

TEST(CodePage, HasExactly256Characters) {
    int count = 0;
    for (int character = 0; character <= 0xFFFF; ++character) {
        count += CodePageHas(QChar(character)) ? 1 : 0;
    }
    EXPECT_EQ(count, 256);
}

TEST(CodePage, ACharacterThatItLacksBecomesOneQuestionMark) {
    const struct {
        QString Text;
        const char* Bytes;
    } cases[] = {
        {QString(), ""},
        {Text("a\xCE\xB1"
              "b"),
         "a?b"},
        {Text("\xF0\x9F\x98\x80"), "?"},
        {Text("x\xF0\x9F\x98\x80y\xF0\x9F\x98\x80"), "x?y?"},
        {QString(QChar(0xD83D)), "?"},
        {QString(QChar(0xDE00)) + QChar(0xD83D), "??"},
        {QString(QChar(0xD83D)) + u'a', "?a"},
        {Text("e\xCC\x81"), "e?"},
        {Text("\xE2\x82\xAC 5"), "\x80 5"},
        {QString(QChar(0xFFFD)), "?"},
        {QString(QChar(0x0080)), "?"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(BytesFromText(row.Text), QByteArray(row.Bytes)) << row.Text.toStdString();
        EXPECT_EQ(OnlyCodePage(row.Text), TextFromBytes(row.Bytes)) << row.Text.toStdString();
        EXPECT_EQ(CodePageHasAll(row.Text), OnlyCodePage(row.Text) == row.Text) << row.Text.toStdString();
    }
}

TEST(CodePage, ChangesCaseOneCharacterForOneAndStaysInItself) {
    const struct {
        const char* Small;
        const char* Capital;
    } pairs[] = {
        {"abcxyz", "ABCXYZ"},
        {"\xC3\xA9\xC3\xA0\xC3\xA7\xC3\xB1\xC3\xBC\xC3\xB8", "\xC3\x89\xC3\x80\xC3\x87\xC3\x91\xC3\x9C\xC3\x98"},
        {"\xC3\xBF", "\xC5\xB8"},
        {"\xC5\x93\xC5\xA1\xC5\xBE", "\xC5\x92\xC5\xA0\xC5\xBD"},
        {"\xC3\xBE\xC3\xB0", "\xC3\x9E\xC3\x90"},
    };
    for (const auto& row : pairs) {
        EXPECT_EQ(UpperCase(Text(row.Small)), Text(row.Capital)) << row.Small;
        EXPECT_EQ(LowerCase(Text(row.Capital)), Text(row.Small)) << row.Small;
    }
    for (const char* same :
         {"\xC3\x9F", "\xC2\xB5", "\xC6\x92", "\xC3\xB7\xC3\x97", "123 ,\"", "\xC2\xAA\xC2\xBA", ""}) {
        EXPECT_EQ(UpperCase(Text(same)), Text(same)) << same;
        EXPECT_EQ(LowerCase(Text(same)), Text(same)) << same;
    }
}

TEST(CodePage, CaseNeverLeavesItNorMovesAPosition) {
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes.append(static_cast<char>(byte));
    }
    for (const QString& text : {UpperCase(TextFromBytes(bytes)), LowerCase(TextFromBytes(bytes))}) {
        EXPECT_EQ(text.size(), 256);
        EXPECT_TRUE(CodePageHasAll(text));
    }
    EXPECT_EQ(UpperCase(LowerCase(Text("\xE1\xBA\x9E"))).size(), 1);
    EXPECT_EQ(LowerCase(Text("\xC4\xB0")).size(), 1);
}

TEST(CodePage, TrimsBlanksOnly) {
    const struct {
        const char* Text;
        const char* Trimmed;
    } cases[] = {{"", ""},
                 {" ", ""},
                 {"   ", ""},
                 {"a", "a"},
                 {"  a b  ", "a b"},
                 {"\ta\t", "\ta\t"},
                 {" \t ", "\t"},
                 {"\xC2\xA0"
                  "a ",
                  "\xC2\xA0"
                  "a"},
                 {"a\n ", "a\n"}};
    for (const auto& row : cases) {
        EXPECT_EQ(TrimBlanks(Text(row.Text)), Text(row.Trimmed)) << row.Text;
    }
}
