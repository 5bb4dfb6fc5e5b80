#include "import/FileBytes.h"

#include "import/ByteScans.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::int64_t WindowSize = std::int64_t{64} * 1024;
constexpr std::int64_t CountedSize = 4096; // lines are counted by so many bytes before they are looked at singly

const char* FindIn(const char* bytes, char byte, std::int64_t size) {
    return static_cast<const char*>(std::memchr(bytes, byte, static_cast<std::size_t>(size)));
}

} // namespace

FileBytes::FileBytes(RandomAccessFile& fileToUse) : file(fileToUse), window(WindowSize) {}

FileBytes::Piece FileBytes::PieceAt(std::int64_t place, std::int64_t to) {
    if (!error && (place < windowPlace || place >= windowPlace + windowSize)) {
        windowPlace = place - place % WindowSize;
        error = file.ReadAt(windowPlace, window.data(), WindowSize, windowSize);
        if (!error && place >= windowPlace + windowSize) {
            error = MakeError(ErrorNumber::InputPastEnd);
        }
    }
    if (error) {
        windowSize = 0;
        return {};
    }
    return {window.data() + (place - windowPlace), std::min(to, windowPlace + windowSize) - place};
}

char FileBytes::At(std::int64_t place) {
    const Piece piece = PieceAt(place, place + 1);
    return piece.Size == 0 ? '\0' : *piece.Bytes;
}

std::int64_t FileBytes::Find(char byte, std::int64_t from, std::int64_t to) {
    while (from < to) {
        const Piece piece = PieceAt(from, to);
        if (piece.Size == 0) {
            return to;
        }
        if (const char* found = FindIn(piece.Bytes, byte, piece.Size)) {
            return from + (found - piece.Bytes);
        }
        from += piece.Size;
    }
    return to;
}

std::int64_t FileBytes::PassLines(std::int64_t place, std::int64_t lines, std::int64_t to) {
    char before = '\0';
    while (lines > 0 && place < to) {
        const Piece piece = PieceAt(place, std::min(to, place + CountedSize));
        if (piece.Size == 0) {
            return to;
        }
        const std::int64_t ends = CountLineEnds(piece.Bytes, piece.Size, before);
        std::int64_t passed = piece.Size;
        for (std::int64_t i = 0, left = lines; ends >= lines && left > 0; ++i) {
            left -= CountLineEnds(piece.Bytes + i, 1, i == 0 ? before : piece.Bytes[i - 1]);
            passed = i + 1;
        }
        lines -= std::min(ends, lines);
        before = piece.Bytes[passed - 1];
        place += passed;
    }
    return before == '\r' && place < to && At(place) == '\n' ? place + 1 : place;
}

std::int64_t FileBytes::LineEnd(std::int64_t place, std::int64_t to) {
    while (place < to) {
        const Piece piece = PieceAt(place, to);
        if (piece.Size == 0) {
            return to;
        }
        const char* const feed = FindIn(piece.Bytes, '\n', piece.Size);
        const std::int64_t size = feed != nullptr ? feed - piece.Bytes : piece.Size;
        const char* const end = FindIn(piece.Bytes, '\r', size);
        if (end != nullptr || feed != nullptr) {
            return place + ((end != nullptr ? end : feed) - piece.Bytes);
        }
        place += piece.Size;
    }
    return to;
}
