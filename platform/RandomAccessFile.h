#pragma once

#include "platform/SystemCalls.h"
#include "platform/SystemError.h"

#include <QString>
#include <cstdint>

/// What a file looked like when it was opened; two equal stamps mean that nobody has written to it in between.
struct FileStamp {
    std::int64_t Size = 0;
    std::int64_t Written = 0; ///< the time of the last write, in the file system's own unit

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// A file opened for reading at any place, by its path in the program's form. Nothing of it is kept in memory. Any
/// thread may use it, one at a time; only Open asks the desktop.
class RandomAccessFile {
public:
    RandomAccessFile() = default;
    ~RandomAccessFile();
    RandomAccessFile(const RandomAccessFile&) = delete;
    RandomAccessFile& operator=(const RandomAccessFile&) = delete;

    /// Opens the file. Errors: 53 no such file, 76 no such folder, 75 a folder or a device in place of a file, 70 no
    /// permission, 68 no such drive, and what the system reports.
    SystemError Open(const QString& path);

    /// Size and time of the last write at the moment of Open.
    const FileStamp& Stamp() const { return stamp; }

    /// Reads up to `size` bytes from `offset` into `buffer`; `count` is how many there were, less than `size` only at
    /// the end of the file.
    SystemError ReadAt(std::int64_t offset, char* buffer, std::int64_t size, std::int64_t& count);

    void Close();

private:
    SystemCalls* calls = nullptr; // of the desktop that the file was opened on
    int handle = -1;
    std::int64_t position = 0; // where the system's next read starts; -1 when that is not known
    FileStamp stamp;
};
