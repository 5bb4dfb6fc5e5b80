#include "options/SchemeFile.h"
#include "tests/options/SchemePairs.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

QByteArray PairLines(int count) {
    QByteArray lines = "\"H\",\" <- Heading for General Analysis columns\"\r\n";
    for (int p = 0; p < count; ++p) {
        lines += "\"s" + QByteArray::number(p) + "\",\"" + QByteArray::number(p) + "\"\r\n";
    }
    return lines;
}

TEST(SchemeFile, ThreeLevelsBothWays) {
    const QByteArray golden = HandWritten("options/level.scm");
    const Scheme scheme{QStringLiteral("Level"), {Pair("R", "0"), Pair("1", "50"), Pair("2", "60")}};
    const SchemeReading reading = ReadSchemeText(golden);
    EXPECT_TRUE(reading.IsGood());
    EXPECT_EQ(reading.Read, scheme);
    EXPECT_EQ(WriteSchemeText(scheme), golden);
}

TEST(SchemeFile, TwoLevelsAreThreeLines) {
    const Scheme scheme{QStringLiteral("Pass"), {Pair("F", "0"), Pair("P", "50")}};
    EXPECT_EQ(WriteSchemeText(scheme), HandWritten("options/two-levels.scm"));
}

TEST(SchemeFile, EveryCharacterOfTheCodePageComesBack) {
    Scheme scheme{QStringLiteral("Niveau é,"), {Pair("é", "0"), Pair("a,b", "50"), Pair(" x ", "99")}};
    for (int code = 128; code < 256; ++code) {
        scheme.Heading += ReadSchemeText(QByteArray("x") + static_cast<char>(code)).Read.Heading.right(1);
    }
    const QByteArray bytes = WriteSchemeText(scheme);
    EXPECT_EQ(ReadSchemeText(bytes).Read, scheme);
    EXPECT_EQ(bytes.mid(1, 10), QByteArray("Niveau \xe9,\x80"));
}

struct ReadCase {
    const char* Name;
    QByteArray Bytes;
    std::vector<SchemePair> Pairs;
};

class GoodSchemes : public testing::TestWithParam<ReadCase> {};

TEST_P(GoodSchemes, AreRead) {
    const SchemeReading reading = ReadSchemeText(GetParam().Bytes);
    EXPECT_FALSE(reading.InvalidData);
    EXPECT_FALSE(reading.Error) << reading.Error.Error.Number << " in line " << reading.Error.Line;
    EXPECT_EQ(reading.Read.Pairs, GetParam().Pairs);
}

INSTANTIATE_TEST_SUITE_P(
    Files, GoodSchemes,
    testing::Values(
        ReadCase{"LineFeedsOnly", "\"H\",\"c\"\n\"F\",\"0\"\n\"P\",\"50\"\n", {Pair("F", "0"), Pair("P", "50")}},
        ReadCase{"CarriageReturnsOnly", "\"H\",\"c\"\r\"F\",\"0\"\r\"P\",\"50\"\r", {Pair("F", "0"), Pair("P", "50")}},
        ReadCase{"NoLastLineEnd", "\"H\",\"c\"\r\n\"F\",\"0\"\r\n\"P\",\"50\"", {Pair("F", "0"), Pair("P", "50")}},
        ReadCase{"Unquoted", "H,c\r\nF,0\r\nP,50\r\n", {Pair("F", "0"), Pair("P", "50")}},
        ReadCase{
            "CommaInASymbol", "\"H\",\"c\"\r\n\"a,b\",\"0\"\r\n\"P\",\"50\"\r\n", {Pair("a,b", "0"), Pair("P", "50")}},
        ReadCase{
            "BlanksStay", "\"H\",\"c\"\r\n\" F\",\" 0\"\r\n\"P \",\"50 \"\r\n", {Pair(" F", " 0"), Pair("P ", "50 ")}},
        ReadCase{"EmptyTexts", "\"\",\"\"\r\n\"\",\"\"\r\n\"\",\"\"\r\n", {Pair("", ""), Pair("", "")}},
        ReadCase{"HighestValue", "\"H\",\"c\"\r\n\"F\",\"0\"\r\n\"P\",\"99\"\r\n", {Pair("F", "0"), Pair("P", "99")}},
        ReadCase{
            "LongestSymbol", "\"H\",\"c\"\r\n\"FFF\",\"0\"\r\n\"P\",\"50\"\r\n", {Pair("FFF", "0"), Pair("P", "50")}},
        ReadCase{
            "FallingValues", "\"H\",\"c\"\r\n\"F\",\"60\"\r\n\"P\",\"50\"\r\n", {Pair("F", "60"), Pair("P", "50")}},
        ReadCase{"ValueIsTheLeadingNumber",
                 "\"H\",\"c\"\r\n\"F\",\"x\"\r\n\"P\",\"50%\"\r\n",
                 {Pair("F", "x"), Pair("P", "50%")}},
        ReadCase{"MissingItemShiftsTheRest",
                 "\"H\",\"c\"\r\n\"F\"\r\n\"1\",\"5\"\r\n\"9\"\r\n",
                 {Pair("F", "1"), Pair("5", "9")}}),
    [](const auto& row) { return std::string(row.param.Name); });

struct RefusedCase {
    const char* Name;
    QByteArray Bytes;
    int ErrorNumber; ///< 0: invalid data
};

class RefusedSchemes : public testing::TestWithParam<RefusedCase> {};

TEST_P(RefusedSchemes, AreRefused) {
    const SchemeReading reading = ReadSchemeText(GetParam().Bytes);
    EXPECT_FALSE(reading.IsGood());
    EXPECT_EQ(reading.InvalidData, GetParam().ErrorNumber == 0);
    EXPECT_EQ(reading.Error.Error.Number, GetParam().ErrorNumber);
}

INSTANTIATE_TEST_SUITE_P(
    Files, RefusedSchemes,
    testing::Values(RefusedCase{"Empty", "", 62}, RefusedCase{"HeadingOnly", "\"H\",\"c\"\r\n", 62},
                    RefusedCase{"NoComment", "\"H\"\r\n", 62},
                    RefusedCase{"SecondItemMissingAtTheEnd", "\"H\",\"c\"\r\n\"F\",\"0\"\r\n\"P\"\r\n", 62},
                    RefusedCase{"EmptyLastLine", "\"H\",\"c\"\r\n\"F\",\"0\"\r\n\"P\",\"50\"\r\n\r\n", 62},
                    RefusedCase{"QuoteNotClosed", "\"H\",\"c\"\r\n\"F\",\"0\r\n", 75},
                    RefusedCase{"OnePair", "\"H\",\"c\"\r\n\"F\",\"0\"\r\n", 0},
                    RefusedCase{"ValueTooHigh", "\"H\",\"c\"\r\n\"F\",\"0\"\r\n\"P\",\"100\"\r\n", 0},
                    RefusedCase{"ValueALittleTooHigh", "\"H\",\"c\"\r\n\"F\",\"0\"\r\n\"P\",\"99.5\"\r\n", 0},
                    RefusedCase{"NegativeValue", "\"H\",\"c\"\r\n\"F\",\"-1\"\r\n\"P\",\"50\"\r\n", 0},
                    RefusedCase{"EnormousValue", "\"H\",\"c\"\r\n\"F\",\"1e999\"\r\n\"P\",\"50\"\r\n", 0},
                    RefusedCase{"SymbolTooLong", "\"H\",\"c\"\r\n\"F\",\"0\"\r\n\"Pass\",\"50\"\r\n", 0}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(SchemeFile, PairsAfterTheNineteenthAreNotLookedAt) {
    for (const QByteArray& rest : {QByteArray(), QByteArray("\"too long\",\"1000\"\r\n"), QByteArray("\"broken")}) {
        const SchemeReading reading = ReadSchemeText(PairLines(19) + rest);
        EXPECT_TRUE(reading.IsGood()) << rest.toStdString();
        EXPECT_EQ(reading.Read.Pairs.size(), 19U);
    }
    EXPECT_EQ(ReadSchemeText(PairLines(25)).Read.Pairs.back(), Pair("s18", "18"));
    EXPECT_EQ(ReadSchemeText(PairLines(18) + "\"Pass\",\"50\"\r\n").InvalidData, true);
}

struct NumberCase {
    const char* Text;
    double Number;
};

TEST(LeadingNumbers, AreTakenFromTheFront) {
    for (const NumberCase& row :
         {NumberCase{"", 0}, NumberCase{"50", 50}, NumberCase{" 5 0 ", 50}, NumberCase{"50%", 50}, NumberCase{"x50", 0},
          NumberCase{"-3", -3}, NumberCase{"+3", 3}, NumberCase{"-", 0}, NumberCase{".5", 0.5}, NumberCase{"5.", 5},
          NumberCase{".", 0}, NumberCase{"1e2", 100}, NumberCase{"1d1", 10}, NumberCase{"1e", 1}, NumberCase{"1e+", 1},
          NumberCase{"1e-1x", 0.1}, NumberCase{"1.5.5", 1.5}, NumberCase{"007", 7}, NumberCase{"--1", 0}}) {
        EXPECT_DOUBLE_EQ(LeadingNumber(QString::fromUtf8(row.Text)), row.Number) << row.Text;
    }
}

} // namespace
