#include "platform/OpenFile.h"

#include <algorithm>

namespace {

constexpr int MostEmptyWrites = 100;
constexpr int MostLinks = 40;
constexpr qsizetype ChunkSize = 65536;

} // namespace

OpenFile::OpenFile(SystemCalls& callsToUse, int openHandle) : calls(callsToUse), handle(openHandle) {}

OpenFile::~OpenFile() {
    Close();
}

int OpenFile::WriteAll(const QByteArray& bytes) {
    qsizetype done = 0;
    int emptyWrites = 0;
    while (done < bytes.size()) {
        const std::int64_t written =
            Retried([&] { return calls.Write(handle, bytes.constData() + done, bytes.size() - done); });
        if (written < 0) {
            return static_cast<int>(-written);
        }
        emptyWrites = written == 0 ? emptyWrites + 1 : 0;
        if (emptyWrites > MostEmptyWrites || written > bytes.size() - done) {
            return EIO;
        }
        done += static_cast<qsizetype>(written);
    }
    return 0;
}

int OpenFile::WriteAllAt(std::int64_t position, const QByteArray& bytes) {
    const std::int64_t reached = Retried([&] { return calls.Seek(handle, position); });
    return reached < 0 ? static_cast<int>(-reached) : WriteAll(bytes);
}

int OpenFile::ReadAll(QByteArray& bytes) {
    bytes.clear();
    qsizetype filled = 0;
    for (;;) {
        bytes.resize(filled + ChunkSize);
        const std::int64_t read = Retried([&] { return calls.Read(handle, bytes.data() + filled, ChunkSize); });
        if (read > 0) {
            filled += static_cast<qsizetype>(std::min<std::int64_t>(read, ChunkSize));
            continue;
        }
        bytes.resize(read < 0 ? 0 : filled);
        return static_cast<int>(-read);
    }
}

int OpenFile::Truncate(std::int64_t size) {
    return -Retried([&] { return calls.Truncate(handle, size); });
}

int OpenFile::SetMode(unsigned mode) {
    return -Retried([&] { return calls.SetMode(handle, mode); });
}

int OpenFile::SetOwner(unsigned owner, unsigned group) {
    return -Retried([&] { return calls.SetOwner(handle, owner, group); });
}

int OpenFile::Sync() {
    return -Retried([&] { return calls.Sync(handle); });
}

int OpenFile::Close() {
    if (handle < 0) {
        return 0;
    }
    const int failure = -calls.Close(handle);
    handle = -EBADF;
    return failure == EINTR ? 0 : failure;
}

int ReadFile(SystemCalls& calls, const NativePath& path, QByteArray& bytes) {
    OpenFile file(calls, Retried([&] { return calls.OpenForReading(path); }));
    return file.Failure() != 0 ? file.Failure() : file.ReadAll(bytes);
}

int FollowLinks(SystemCalls& calls, NativePath& path, SystemCalls::FileStatus& status) {
    for (int links = 0; links <= MostLinks; ++links) {
        status = {};
        if (const int failure = -Retried([&] { return calls.Status(path, status); })) {
            return failure;
        }
        if (!status.IsSymbolicLink) {
            return 0;
        }
        NativePath target;
        if (const int failure = -Retried([&] { return calls.ReadLink(path, target); })) {
            return failure;
        }
        path = path.parent_path() / target; // an absolute target replaces the folder
    }
    return ELOOP;
}
