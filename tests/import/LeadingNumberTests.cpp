#include "import/LeadingNumber.h"
#include "tests/support/Text.h"

#include <gtest/gtest.h>

namespace {

struct NumberCase {
    const char* text;
    int number;
};

constexpr NumberCase Fitting[] = {
    {"6", 6},          {"  12", 12},       {"+7", 7},          {"-3", -3},           {"", 0},        {"   ", 0},
    {"abc", 0},        {"x6", 0},          {"6x", 6},          {"6 7", 6},           {"3,5", 3},     {"\t5", 0},
    {"007", 7},        {"0.5", 0},         {"1.5", 2},         {"2.5", 2},           {"3.5", 4},     {"24.5", 24},
    {"25.5", 26},      {"-0.5", 0},        {"-1.5", -2},       {"-2.5", -2},         {".6", 1},      {"5.", 5},
    {".", 0},          {"+", 0},           {"-", 0},           {"- 3", 0},           {"+-3", 0},     {"1e1", 10},
    {"2.4E+1", 24},    {"240E-1", 24},     {"1e", 1},          {"1e+", 1},           {"1ex", 1},     {"1.2.3", 1},
    {"32767", 32767},  {"32767.4", 32767}, {"-32768", -32768}, {"-32768.5", -32768}, {"1e-9999", 0}, {"-1E-400x", 0},
    {"0.49999999", 0}, {"1.50000001", 2},  {"é4", 0}};

TEST(LeadingNumberTest, ReadsTheNumberThatATextBeginsWith) {
    for (const NumberCase& row : Fitting) {
        std::int16_t value = 99;
        EXPECT_TRUE(LeadingNumber(Text(row.text), value)) << row.text;
        EXPECT_EQ(row.number, value) << row.text;
    }
}

TEST(LeadingNumberTest, RefusesWhatDoesNotFit16Bits) {
    for (const char* text : {"32768", "32767.5", "-32769", "-32769.5", "65536", "99999999999", "1e5", "1e9999"}) {
        std::int16_t value = 99;
        EXPECT_FALSE(LeadingNumber(Text(text), value)) << text;
        EXPECT_EQ(99, value) << text;
    }
}

} // namespace
