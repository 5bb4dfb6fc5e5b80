#include "platform/RandomAccessFile.h"

#include "platform/Desktop.h"
#include "platform/OpenFile.h"
#include "platform/Volumes.h"

#include <cerrno>

namespace {

constexpr std::int64_t UnknownPosition = -1;

// A pipe or a device is refused before it is opened: opening one may wait for ever.
SystemError LookAt(SystemCalls& calls, const NativePath& path, FileStamp& stamp) {
    NativePath followed = path;
    SystemCalls::FileStatus status;
    if (const int failure = FollowLinks(calls, followed, status)) {
        return ErrorFromErrno(failure);
    }
    stamp = {status.Size, status.Written};
    return status.IsRegularFile ? SystemError() : MakeError(ErrorNumber::PathFileAccess);
}

} // namespace

RandomAccessFile::~RandomAccessFile() {
    Close();
}

SystemError RandomAccessFile::Open(const QString& path) {
    Close();
    calls = &TheDesktop().TheSystemCalls();
    const Volumes::NativeResult native = TheDesktop().TheVolumes().ToNative(path);
    if (native.Error) {
        return native.Error;
    }
    FileStamp found;
    if (SystemError error = LookAt(*calls, native.Path, found)) {
        return error;
    }
    const int opened = calls->OpenForReading(native.Path);
    if (opened < 0) {
        return ErrorFromErrno(-opened);
    }
    handle = opened;
    position = 0;
    stamp = found;
    return {};
}

SystemError RandomAccessFile::ReadAt(std::int64_t offset, char* buffer, std::int64_t size, std::int64_t& count) {
    count = 0;
    if (position != offset) {
        const std::int64_t moved = calls->Seek(handle, offset);
        if (moved < 0) {
            position = UnknownPosition;
            return ErrorFromErrno(static_cast<int>(-moved));
        }
    }
    position = offset;
    while (count < size) {
        const std::int64_t result = calls->Read(handle, buffer + count, size - count);
        if (result == -EINTR) {
            continue;
        }
        if (result < 0) {
            position = UnknownPosition;
            return ErrorFromErrno(static_cast<int>(-result));
        }
        if (result == 0) {
            break;
        }
        count += result;
        position += result;
    }
    return {};
}

void RandomAccessFile::Close() {
    if (handle >= 0) {
        calls->Close(handle);
        handle = -1;
    }
}
