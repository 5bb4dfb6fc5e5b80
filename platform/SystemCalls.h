#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

using NativePath = std::filesystem::path;

/// Every call to the operating system's files that a save or a read makes, one routine a call, so that a test can
/// fail any of them with any error. Each returns 0 or a value on success and minus the errno value on failure;
/// a call may be interrupted (-EINTR) or short, and the caller goes on.
class SystemCalls {
public:
    struct FileStatus {
        bool IsFolder = false;
        bool IsRegularFile = false;
        bool IsSymbolicLink = false;
        std::int64_t Size = 0;
        unsigned Mode = 0;        ///< permission bits
        unsigned Owner = 0;       ///< user number; 0 on Windows
        unsigned Group = 0;       ///< group number; 0 on Windows
        std::int64_t Written = 0; ///< time of the last write, in the system's own unit
    };

    virtual ~SystemCalls() = default;

    /// What the name stands for; a symbolic link itself is not followed.
    virtual int Status(const NativePath& path, FileStatus& status) = 0;
    virtual int ReadLink(const NativePath& path, NativePath& target) = 0;

    /// Handles are 0 or above.
    virtual int OpenForReading(const NativePath& path) = 0;
    virtual int OpenForWriting(const NativePath& path) = 0; ///< an existing file, its bytes kept
    virtual int CreateExclusive(const NativePath& path, unsigned mode) = 0;
    virtual std::int64_t Read(int handle, char* buffer, std::int64_t size) = 0;
    virtual std::int64_t Write(int handle, const char* bytes, std::int64_t size) = 0;
    virtual std::int64_t Seek(int handle, std::int64_t position) = 0;
    virtual int Truncate(int handle, std::int64_t size) = 0;
    virtual int SetMode(int handle, unsigned mode) = 0;
    virtual int SetOwner(int handle, unsigned owner, unsigned group) = 0;
    virtual int Sync(int handle) = 0;
    virtual int Close(int handle) = 0;

    /// Moves the file over the target in one step; on Windows a replace that keeps the target's access list.
    virtual int Replace(const NativePath& source, const NativePath& target) = 0;
    virtual int Remove(const NativePath& path) = 0;
    virtual int SyncFolder(const NativePath& folder) = 0;
    virtual int ListNames(const NativePath& folder, std::vector<NativePath>& names) = 0; ///< without "." and ".."

    /// A number that tells this run from others; part of temporary names.
    virtual std::int64_t ProcessNumber() = 0;
    /// Whether a run of that number is alive (its temporary files are then left alone).
    virtual bool ProcessIsAlive(std::int64_t number) = 0;
    /// Waits; used between two tries to replace a file that another program holds.
    virtual void Wait(int milliseconds) = 0;
};

/// The calls of the running system.
SystemCalls& RealSystemCalls();
