#include "platform/RandomAccessFile.h"

#include "platform/Desktop.h"
#include "platform/Volumes.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace {

constexpr std::int64_t UnknownPosition = -1;

// Looks through symbolic links. A pipe or a device is refused before it is opened: opening one may wait for ever.
SystemError LookAt(const NativePath& path, FileStamp& stamp) {
    std::error_code failure;
    const std::filesystem::file_status status = std::filesystem::status(path, failure);
    if (failure) {
        return ErrorFromErrno(failure.value());
    }
    if (!std::filesystem::is_regular_file(status)) {
        return MakeError(ErrorNumber::PathFileAccess);
    }
    stamp.Size = static_cast<std::int64_t>(std::filesystem::file_size(path, failure));
    if (!failure) {
        stamp.Written =
            static_cast<std::int64_t>(std::filesystem::last_write_time(path, failure).time_since_epoch().count());
    }
    return failure ? ErrorFromErrno(failure.value()) : SystemError();
}

} // namespace

RandomAccessFile::~RandomAccessFile() {
    Close();
}

SystemError RandomAccessFile::Open(const QString& path) {
    Close();
    const Volumes::NativeResult native = TheDesktop().TheVolumes().ToNative(path);
    if (native.Error) {
        return native.Error;
    }
    FileStamp found;
    if (const SystemError error = LookAt(native.Path, found)) {
        return error;
    }
    const int opened = TheDesktop().TheSystemCalls().OpenForReading(native.Path);
    if (opened < 0) {
        return ErrorFromErrno(-opened);
    }
    handle = opened;
    position = 0;
    stamp = found;
    return {};
}

SystemError RandomAccessFile::ReadAt(std::int64_t offset, char* buffer, std::int64_t size, std::int64_t& count) {
    SystemCalls& calls = TheDesktop().TheSystemCalls();
    count = 0;
    if (position != offset) {
        const std::int64_t moved = calls.Seek(handle, offset);
        if (moved < 0) {
            position = UnknownPosition;
            return ErrorFromErrno(static_cast<int>(-moved));
        }
    }
    position = offset;
    while (count < size) {
        const std::int64_t result = calls.Read(handle, buffer + count, size - count);
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
        TheDesktop().TheSystemCalls().Close(handle);
        handle = -1;
    }
}
