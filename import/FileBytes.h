#pragma once

#include "import/RecordBytes.h"
#include "platform/RandomAccessFile.h"

#include <vector>

/// The bytes of a file, read through a window of 64 KB. After an error every search ends at once and every byte is
/// '\0'; the error stays. So does a place beyond the file's end (62): the file has shrunk.
class FileBytes : public RecordBytes {
public:
    /// `file` is open and stays the caller's.
    explicit FileBytes(RandomAccessFile& file);

    char At(std::int64_t place) override;
    std::int64_t Find(char byte, std::int64_t from, std::int64_t to) override;

    /// The place of the line that starts `lines` lines behind the one that starts at `place`; `to` when there are
    /// fewer.
    std::int64_t PassLines(std::int64_t place, std::int64_t lines, std::int64_t to);

    /// The place of the CR or LF that ends the line at `place`; `to` when it has no end.
    std::int64_t LineEnd(std::int64_t place, std::int64_t to);

    const SystemError& Error() const { return error; }

private:
    RandomAccessFile& file;
    std::vector<char> window;
    std::int64_t windowPlace = 0;
    std::int64_t windowSize = 0;
    SystemError error;

    /// The window's bytes in [place, to), at least one, at most a window; none after an error.
    struct Piece {
        const char* Bytes = nullptr;
        std::int64_t Size = 0;
    };
    Piece PieceAt(std::int64_t place, std::int64_t to);
};
