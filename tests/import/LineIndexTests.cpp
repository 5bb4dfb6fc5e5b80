#include "import/ByteScans.h"
#include "import/LineIndex.h"

#include <QByteArray>
#include <gtest/gtest.h>
#include <random>

namespace {

struct LinesCase {
    QByteArray bytes;
    std::int64_t lines;
};

const LinesCase Cases[] = {
    {"", 0},
    {"a", 1},
    {"a\n", 1},
    {"a\r", 1},
    {"a\r\n", 1},
    {"\n", 1},
    {"\r", 1},
    {"\r\n", 1},
    {"\n\r", 2},
    {"\r\r\n", 2},
    {"\r\n\n", 2},
    {"a\nb", 2},
    {"a\rb\nc\r\nd", 4},
    {"\n\n\n", 3},
    {"\r\r\r", 3},
    {"\r\n\r\n", 2},
    {QByteArray("\0\n\0", 3), 2},
    {"a\r\n\r\n", 2},
};

LineIndex Indexed(const QByteArray& bytes, qsizetype piece, std::int64_t spacing, std::size_t limit) {
    LineIndex index(spacing, limit);
    for (qsizetype at = 0; at < bytes.size(); at += piece) {
        index.Add(bytes.constData() + at, std::min(piece, bytes.size() - at));
    }
    return index;
}

// Where each line starts, the slow and plain way.
std::vector<std::int64_t> StartsOf(const QByteArray& bytes) {
    std::vector<std::int64_t> starts;
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        starts.push_back(at);
        while (at < bytes.size() && bytes[at] != '\r' && bytes[at] != '\n') {
            ++at;
        }
        at += at + 1 < bytes.size() && bytes[at] == '\r' && bytes[at + 1] == '\n' ? 1 : 0;
    }
    return starts;
}

TEST(LineIndexTest, CountsLinesWhereverThePiecesEnd) {
    for (const LinesCase& row : Cases) {
        for (qsizetype piece = 1; piece <= row.bytes.size() + 1; ++piece) {
            EXPECT_EQ(row.lines, Indexed(row.bytes, piece, 4, 8).LineCount())
                << row.bytes.toPercentEncoding().constData() << " by " << piece;
        }
    }
}

TEST(LineIndexTest, CountsManyLinesBlockByBlock) {
    for (const char* line : {"x\r\n", "\n", "\r", "abc\n", "a,b,c,d\r"}) {
        EXPECT_EQ(30000, Indexed(QByteArray(line).repeated(30000), 8191, 4096, 99).LineCount()) << line;
    }
}

TEST(ByteScansTest, FindsTheAsciiBlocksInFront) {
    QByteArray bytes(20000, 'x');
    EXPECT_EQ(16384, AsciiAtStart(bytes.constData(), bytes.size())); // whole blocks of 4096 only
    bytes[9000] = '\x80';
    EXPECT_EQ(8192, AsciiAtStart(bytes.constData(), bytes.size()));
    bytes[0] = '\xFF';
    EXPECT_EQ(0, AsciiAtStart(bytes.constData(), bytes.size()));
    EXPECT_EQ(0, AsciiAtStart(bytes.constData(), 0));
}

QByteArray RandomLines(std::mt19937_64& random, int size) {
    const char letters[] = "abcdef\r\n\n\r";
    QByteArray bytes;
    for (int i = 0; i < size; ++i) {
        bytes.append(letters[random() % 10]);
    }
    return bytes;
}

TEST(LineIndexTest, MarksStartLinesAndLieNearEveryLine) {
    std::mt19937_64 random(20160307);
    for (int round = 0; round < 60; ++round) {
        const QByteArray bytes = RandomLines(random, 3000);
        const std::vector<std::int64_t> starts = StartsOf(bytes);
        const auto piece = static_cast<qsizetype>(1 + random() % 200);
        const LineIndex index = Indexed(bytes, piece, 100, 1000);
        ASSERT_EQ(static_cast<std::int64_t>(starts.size()), index.LineCount());
        for (std::size_t line = 1; line <= starts.size(); ++line) {
            const LineIndex::Mark mark = index.MarkBefore(static_cast<std::int64_t>(line));
            ASSERT_LE(mark.Line, static_cast<std::int64_t>(line));
            ASSERT_EQ(starts[static_cast<std::size_t>(mark.Line - 1)], mark.Place);
            ASSERT_LE(starts[line - 1] - mark.Place, 100 + 2 * piece + 40);
        }
    }
}

TEST(LineIndexTest, MarksAFileOfReturnsOnly) {
    const QByteArray bytes(100000, '\r');
    const LineIndex index = Indexed(bytes, 1000, 2000, 1000);
    EXPECT_EQ(100000, index.LineCount());
    EXPECT_GT(index.MarkBefore(99000).Line, 90000);
}

TEST(LineIndexTest, KeepsFewMarksHoweverLongTheFile) {
    const LineIndex index = Indexed(QByteArray("line\r\n").repeated(100000), 64, 64, 16);
    const LineIndex::Mark mark = index.MarkBefore(100000);
    EXPECT_GT(mark.Line, 50000);
    EXPECT_EQ((mark.Line - 1) * 6, mark.Place);
}

} // namespace
