#include "tests/fuzz/ReaderTimes.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr qsizetype SmallSize = qsizetype{64} * 1024;
constexpr int Growth = 8;
constexpr int Leeway = 4;            // a quadratic reader would take 8 times longer than a linear one
constexpr double Measurable = 0.001; // seconds; below it the clock says little

// Repeated, each makes a long file of another kind: one line, one item, many lines, many items, quotes without an end.
const QByteArray Units[] = {"a",      " ",         "\"",       ",",         "\t",           "\r\n",
                            "\r",     "\"\",",     "\"a,\"\t", "\"a\r\n",   "1,",           "Field1=x\r",
                            "[\n",    "=\n",       "c=/\n",    "x=/a/b/\r", "\xC3\xA9",     "\"a\"b,c",
                            "-1\r\n", "\"9\"\r\n", "#\n",      "0000000",   "AddNames=1\n", "activefields=24\r\n"};

TEST(ReaderTimes, GrowNoFasterThanTheFile) {
    for (const TimedReader& reader : TimedReaders()) {
        for (const QByteArray& unit : Units) {
            const QByteArray small = unit.repeated(SmallSize / unit.size());
            const double smallTime = std::max(ReadingTime(reader, small), Measurable);
            EXPECT_LT(ReadingTime(reader, small.repeated(Growth)), smallTime * Growth * Leeway)
                << reader.Name << " of " << testing::PrintToString(unit.toStdString());
        }
    }
}

} // namespace
