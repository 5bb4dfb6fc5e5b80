#pragma once

#include <cstdint>
#include <vector>

/// Counts the lines of a file given piece by piece (ended by CR LF, LF or CR, mixed; the last one may lack its end) and
/// remembers where some of them start, so that any line is found without reading the file from its start.
class LineIndex {
public:
    /// A line, counted from 1, and the place of its first byte.
    struct Mark {
        std::int64_t Line = 1;
        std::int64_t Place = 0;
    };

    /// A mark is set when at least `spacing` bytes have passed since the last one; with too many marks it doubles.
    explicit LineIndex(std::int64_t spacing = std::int64_t{256} * 1024, std::size_t markLimit = 65536);

    void Add(const char* bytes, std::int64_t count);

    /// The lines of the bytes given so far.
    std::int64_t LineCount() const { return ends + (size > 0 && !IsEnd(last) ? 1 : 0); }

    /// The last mark at or before a line.
    Mark MarkBefore(std::int64_t line) const;

private:
    std::int64_t spacing;
    std::size_t markLimit;
    std::vector<Mark> marks = {Mark{}};
    std::int64_t ends = 0;
    std::int64_t size = 0;
    char last = '\0';

    static bool IsEnd(char byte) { return byte == '\r' || byte == '\n'; }
    void SetMark(const char* bytes, std::int64_t count);
    void DropEverySecondMark();
};
