#include "import/PieceReader.h"

#include <QDeadlineTimer>
#include <QMutex>
#include <QWaitCondition>
#include <array>
#include <vector>

namespace {

constexpr std::int64_t PieceSize = std::int64_t{128} * 1024;
constexpr std::size_t PieceCount = 8;

} // namespace

/// A ring of pieces: the thread fills them in turn, the reader's owner empties them.
struct PieceReader::Shared {
    struct Room {
        std::vector<char> Bytes;
        std::int64_t Size = 0;
    };

    QMutex Lock;
    QWaitCondition Changed;
    std::array<Room, PieceCount> Rooms;
    std::size_t Filled = 0;  // so many pieces have been read,
    std::size_t Given = 0;   // so many handed over,
    std::size_t Emptied = 0; // and so many are done with
    bool Ended = false;
    bool Left = false; // by the owner
    FileStamp Stamp;
    SystemError Error;

    void ReadFile(const QString& path);
    bool AwaitEmptyRoom();
};

// False when nobody needs the pieces any more.
bool PieceReader::Shared::AwaitEmptyRoom() {
    const QMutexLocker guard(&Lock);
    while (!Left && Filled - Emptied == PieceCount) {
        Changed.wait(&Lock);
    }
    return !Left;
}

void PieceReader::Shared::ReadFile(const QString& path) {
    RandomAccessFile file;
    SystemError error = file.Open(path);
    {
        const QMutexLocker guard(&Lock);
        Stamp = file.Stamp();
    }
    std::int64_t offset = 0;
    bool more = !error;
    while (more && AwaitEmptyRoom()) {
        Room& room = Rooms[Filled % PieceCount];
        room.Bytes.resize(PieceSize);
        error = file.ReadAt(offset, room.Bytes.data(), PieceSize, room.Size);
        offset += room.Size;
        more = !error && room.Size == PieceSize;
        const QMutexLocker guard(&Lock);
        ++Filled;
        Changed.wakeAll();
    }
    const QMutexLocker guard(&Lock);
    Error = error;
    Ended = true;
    Changed.wakeAll();
}

PieceReader::PieceReader(const QString& path)
    : shared(std::make_shared<Shared>()), thread([kept = shared, path] { kept->ReadFile(path); }) {}

PieceReader::~PieceReader() {
    const QMutexLocker guard(&shared->Lock);
    shared->Left = true;
    shared->Changed.wakeAll();
}

PieceReader::Piece PieceReader::Next(int milliseconds) {
    const QDeadlineTimer deadline(milliseconds);
    const QMutexLocker guard(&shared->Lock);
    shared->Emptied = shared->Given;
    shared->Changed.wakeAll();
    while (shared->Filled == shared->Given && !shared->Ended && shared->Changed.wait(&shared->Lock, deadline)) {
    }
    if (shared->Filled > shared->Given) {
        const Shared::Room& room = shared->Rooms[shared->Given++ % PieceCount];
        return {State::Read, room.Bytes.data(), room.Size};
    }
    return {shared->Ended ? State::Ended : State::Waiting, nullptr, 0};
}

FileStamp PieceReader::Stamp() const {
    const QMutexLocker guard(&shared->Lock);
    return shared->Stamp;
}

SystemError PieceReader::Error() const {
    const QMutexLocker guard(&shared->Lock);
    return shared->Error;
}
