#pragma once

#include "platform/BackgroundWork.h"
#include "platform/RandomAccessFile.h"

/// A file read piece by piece from its start to its end, in a thread of its own that is a few pieces ahead. While a
/// read hangs, Next returns without a piece; and the reader can go at any time.
class PieceReader {
public:
    /// Starts to read the file of a path in the program's form.
    explicit PieceReader(const QString& path);
    ~PieceReader();
    PieceReader(const PieceReader&) = delete;
    PieceReader& operator=(const PieceReader&) = delete;

    enum class State {
        Waiting, ///< no piece has come yet
        Read,
        Ended, ///< every piece has been handed over; Error() tells whether they are the whole file
    };
    struct Piece {
        State What = State::Waiting;
        const char* Bytes = nullptr; ///< good until the next call
        std::int64_t Size = 0;
    };

    /// The next piece; waits for it at most so many milliseconds.
    Piece Next(int milliseconds);

    /// What the file looked like when it was opened; nothing while it is being opened.
    FileStamp Stamp() const;

    /// Why the file could not be opened, or not be read to its end.
    SystemError Error() const;

private:
    struct Shared;
    std::shared_ptr<Shared> shared;
    BackgroundWork thread;
};
