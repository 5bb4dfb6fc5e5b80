#include "options/SchemeCheck.h"
#include "tests/options/SchemePairs.h"

#include <gtest/gtest.h>

namespace {

using Pairs = std::vector<SchemePair>;

struct CheckCase {
    const char* Name;
    Pairs Scheme;
    const char* Report;
    std::set<int> Symbols;
    std::set<int> Values;
};

class SchemeChecks : public testing::TestWithParam<CheckCase> {};

TEST_P(SchemeChecks, ReportAndPinkFields) {
    const SchemeProblems problems = CheckScheme(GetParam().Scheme);
    EXPECT_EQ(problems.Report, QString::fromUtf8(GetParam().Report));
    EXPECT_EQ(problems.Symbols, GetParam().Symbols);
    EXPECT_EQ(problems.Values, GetParam().Values);
}

const char NoSecondSymbol[] = "  -> Position 2 does not have a symbol and/or a value.\n\n\n";

INSTANTIATE_TEST_SUITE_P(
    Cases, SchemeChecks,
    testing::Values(
        CheckCase{"Good", {Pair("R", "0"), Pair("1", "50"), Pair("2", "60")}, "", {}, {}},
        CheckCase{"MissingSymbol", {Pair("R", "0"), Pair("", "50"), Pair("2", "60")}, NoSecondSymbol, {1}, {}},
        // The missing symbol silences the order test of its own pair only.
        CheckCase{
            "MissingSymbolSilencesOrder", {Pair("R", "70"), Pair("", "50"), Pair("2", "60")}, NoSecondSymbol, {1}, {}},
        CheckCase{"MissingValue",
                  {Pair("R", "0"), Pair("1", ""), Pair("2", "60")},
                  "  -> Position 2 does not have a symbol and/or a value.\n\n\n"
                  "  -> The value at position 2 () is LESS than or EQUAL to the value at position 1 (0)\n",
                  {},
                  {0, 1}},
        CheckCase{"MissingBoth",
                  {Pair("R", "0"), Pair("1", "50"), Pair("", "")},
                  "  -> Position 3 does not have a symbol and/or a value.\n\n\n",
                  {2},
                  {2}},
        CheckCase{"AllMissing",
                  {Pair("", ""), Pair("", "")},
                  "  -> Position 1 does not have a symbol and/or a value.\n"
                  "  -> Position 2 does not have a symbol and/or a value.\n\n\n",
                  {0, 1},
                  {0, 1}},
        CheckCase{"DuplicateWithoutCase",
                  {Pair("R", "0"), Pair("a", "10"), Pair("b", "20"), Pair("c", "30"), Pair("A", "40")},
                  "  -> Duplicated symbol:  [a] at positions 2 and 5\n\n",
                  {1, 4},
                  {}},
        CheckCase{"DuplicateAccented",
                  {Pair("é", "0"), Pair("É", "10")},
                  "  -> Duplicated symbol:  [é] at positions 1 and 2\n\n",
                  {0, 1},
                  {}},
        CheckCase{"ThreeAlike",
                  {Pair("x", "0"), Pair("x", "10"), Pair("x", "20")},
                  "  -> Duplicated symbol:  [x] at positions 1 and 2\n"
                  "  -> Duplicated symbol:  [x] at positions 1 and 3\n"
                  "  -> Duplicated symbol:  [x] at positions 2 and 3\n\n",
                  {0, 1, 2},
                  {}},
        CheckCase{"EqualValues",
                  {Pair("R", "0"), Pair("1", "50"), Pair("2", "50")},
                  "  -> The value at position 3 (50) is LESS than or EQUAL to the value at position 2 (50)\n",
                  {},
                  {1, 2}},
        CheckCase{"FallingValues",
                  {Pair("R", "0"), Pair("1", "60"), Pair("2", "50")},
                  "  -> The value at position 3 (50) is LESS than or EQUAL to the value at position 2 (60)\n",
                  {},
                  {1, 2}},
        CheckCase{"ValuesAreNumbersNotTexts", {Pair("R", "9"), Pair("1", "10")}, "", {}, {}},
        CheckCase{"PercentSignInASymbol",
                  {Pair("%1", "0"), Pair("%1", "10")},
                  "  -> Duplicated symbol:  [%1] at positions 1 and 2\n\n",
                  {0, 1},
                  {}},
        CheckCase{"AllThreePasses",
                  {Pair("a", ""), Pair("A", "50"), Pair("b", "40")},
                  "  -> Position 1 does not have a symbol and/or a value.\n\n"
                  "  -> Duplicated symbol:  [a] at positions 1 and 2\n\n"
                  "  -> The value at position 3 (40) is LESS than or EQUAL to the value at position 2 (50)\n",
                  {0, 1},
                  {0, 1, 2}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST(LowestSymbol, LabelOfBothEditions) {
    EXPECT_EQ(LowestSymbolText(QStringLiteral("65"), false), QStringLiteral("For 0 to 64.9% use:"));
    EXPECT_EQ(LowestSymbolText(QStringLiteral("65"), true), QStringLiteral("Pour 0 à 64,9% utiliser :"));
    EXPECT_EQ(LowestSymbolText(QStringLiteral("05x"), false), QStringLiteral("For 0 to 4.9% use:"));
    EXPECT_EQ(LowestSymbolText(QStringLiteral("1.1"), false), QStringLiteral("For 0 to 0.1.9% use:")); // 15 digits
    EXPECT_EQ(LowestSymbolText(QString(), false), QStringLiteral("For 0 to -1.9% use:"));
    EXPECT_EQ(LowestSymbolUnknownText(false), QStringLiteral("For the lowest symbol use:"));
}

} // namespace
