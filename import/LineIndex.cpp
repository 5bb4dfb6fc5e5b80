#include "import/LineIndex.h"

#include "import/ByteScans.h"

#include <algorithm>

LineIndex::LineIndex(std::int64_t spacingToUse, std::size_t markLimitToUse)
    : spacing(spacingToUse), markLimit(markLimitToUse) {}

void LineIndex::Add(const char* bytes, std::int64_t count) {
    if (count == 0) {
        return;
    }
    ends += CountLineEnds(bytes, count, last);
    SetMark(bytes, count);
    size += count;
    last = bytes[count - 1];
}

LineIndex::Mark LineIndex::MarkBefore(std::int64_t line) const {
    const auto after = std::upper_bound(marks.begin(), marks.end(), line,
                                        [](std::int64_t wanted, const Mark& mark) { return wanted < mark.Line; });
    return *std::prev(after);
}

// Marks the last line that starts within the piece. Whether a CR as its last byte ends a line alone or together with
// a LF is not known yet, so the line behind it is left out.
void LineIndex::SetMark(const char* bytes, std::int64_t count) {
    if (size + count - marks.back().Place < spacing) {
        return;
    }
    std::int64_t start = count;
    std::int64_t line = ends + 1;
    if (bytes[count - 1] == '\r') {
        --start;
        --line;
    }
    while (start > 0 && !IsEnd(bytes[start - 1])) {
        --start;
    }
    if (start == 0 || size + start - marks.back().Place < spacing) {
        return;
    }
    marks.push_back({line, size + start});
    if (marks.size() > markLimit) {
        DropEverySecondMark();
    }
}

void LineIndex::DropEverySecondMark() {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < marks.size(); i += 2) {
        marks[kept++] = marks[i];
    }
    marks.resize(kept);
    spacing *= 2;
}
