#include "platform/SystemCalls.h"

#include "platform/windows/MoveOver.h"
#include "platform/windows/NativeNames.h"
#include "platform/windows/ReparsePoints.h"
#include "platform/windows/WindowsErrors.h"

#include <algorithm>
#include <cerrno>
#include <functional>
#include <windows.h>

namespace {

constexpr DWORD EverybodyMay = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::int64_t MostBytesACall = 1 << 20; // more in one call fails on some network drives
constexpr unsigned AnyWrite = 0222;
constexpr unsigned FileMode = 0666; // access lists say more, and the move keeps them
constexpr unsigned FolderMode = 0777;
constexpr std::size_t LongestName = 255;
constexpr int ProcessBits = 32;

// The system's handles have no more than 32 bits that count.
HANDLE Handle(int handle) {
    return reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(handle));
}

int OrError(BOOL done) {
    return done != 0 ? 0 : LastFailure();
}

std::int64_t Joined(DWORD high, DWORD low) {
    return static_cast<std::int64_t>(std::uint64_t{high} << 32U | low);
}

// Tells this machine from others that work in the same shared folder.
std::int64_t MachineNumber() {
    wchar_t name[256] = {};
    DWORD size = 255;
    if (GetComputerNameExW(ComputerNameDnsHostname, name, &size) == 0) {
        return 0;
    }
    return static_cast<std::int64_t>(std::hash<std::wstring>()(name) & 0x7FFFFFFFU);
}

// Other kinds of marked files (a cloud's, a deduplicated one) are read and written like any file.
bool IsLink(DWORD marks, DWORD tag) {
    return (marks & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           (tag == IO_REPARSE_TAG_SYMLINK || tag == IO_REPARSE_TAG_MOUNT_POINT);
}

class WindowsCalls : public SystemCalls {
public:
    WindowsCalls() {
        // A drive without a disk is an error of the call, not a question of the system's in a box of its own.
        SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    }

    int Status(const NativePath& path, FileStatus& status) override {
        if (path.filename().native().size() > LongestName) {
            return -ENAMETOOLONG; // disks differ in what they say of it
        }
        const bool looksThrough = path.filename() == "." || !path.has_filename();
        const DWORD links = looksThrough ? 0 : FILE_FLAG_OPEN_REPARSE_POINT;
        const HANDLE handle = CreateFileW(NameForCall(path).c_str(), FILE_READ_ATTRIBUTES, EverybodyMay, nullptr,
                                          OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | links, nullptr);
        if (handle == INVALID_HANDLE_VALUE) {
            return LastFailure();
        }
        BY_HANDLE_FILE_INFORMATION found = {};
        FILE_ATTRIBUTE_TAG_INFO tag = {};
        const bool isFile = GetFileType(handle) == FILE_TYPE_DISK; // a device has no other properties
        const int failure = isFile ? OrError(GetFileInformationByHandle(handle, &found)) : -EINVAL;
        if (failure == 0 && (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
            GetFileInformationByHandleEx(handle, FileAttributeTagInfo, &tag, sizeof tag);
        }
        CloseHandle(handle);
        if (failure == 0) {
            status = StatusOf(found, IsLink(found.dwFileAttributes, tag.ReparseTag));
        }
        return failure;
    }

    int ReadLink(const NativePath& path, NativePath& target) override { return ReadReparsePoint(path, target); }

    int OpenForReading(const NativePath& path) override { return Open(path, GENERIC_READ, OPEN_EXISTING); }
    int OpenForWriting(const NativePath& path) override { return Open(path, GENERIC_WRITE, OPEN_EXISTING); }
    int CreateExclusive(const NativePath& path, unsigned) override { return Open(path, GENERIC_WRITE, CREATE_NEW); }

    std::int64_t Read(int handle, char* buffer, std::int64_t size) override {
        DWORD read = 0;
        const auto most = static_cast<DWORD>(std::min(size, MostBytesACall));
        if (ReadFile(Handle(handle), buffer, most, &read, nullptr) == 0) {
            return GetLastError() == ERROR_HANDLE_EOF ? 0 : LastFailure();
        }
        return read;
    }

    std::int64_t Write(int handle, const char* bytes, std::int64_t size) override {
        DWORD written = 0;
        const auto most = static_cast<DWORD>(std::min(size, MostBytesACall));
        return WriteFile(Handle(handle), bytes, most, &written, nullptr) != 0 ? std::int64_t{written} : LastFailure();
    }

    std::int64_t Seek(int handle, std::int64_t position) override {
        LARGE_INTEGER wanted = {};
        LARGE_INTEGER reached = {};
        wanted.QuadPart = position;
        return SetFilePointerEx(Handle(handle), wanted, &reached, FILE_BEGIN) != 0 ? std::int64_t{reached.QuadPart}
                                                                                   : LastFailure();
    }

    int Truncate(int handle, std::int64_t size) override {
        FILE_END_OF_FILE_INFO end = {};
        end.EndOfFile.QuadPart = size;
        return OrError(SetFileInformationByHandle(Handle(handle), FileEndOfFileInfo, &end, sizeof end));
    }

    // Only "nobody may write" has a mark of its own.
    int SetMode(int handle, unsigned mode) override {
        if ((mode & AnyWrite) != 0) {
            return 0;
        }
        FILE_BASIC_INFO info = {};
        if (GetFileInformationByHandleEx(Handle(handle), FileBasicInfo, &info, sizeof info) == 0) {
            return LastFailure();
        }
        info.FileAttributes |= FILE_ATTRIBUTE_READONLY;
        return OrError(SetFileInformationByHandle(Handle(handle), FileBasicInfo, &info, sizeof info));
    }

    int SetOwner(int, unsigned, unsigned) override { return 0; } // whoever saves a file owns it, as everywhere here
    int Sync(int handle) override { return OrError(FlushFileBuffers(Handle(handle))); }
    int Close(int handle) override { return OrError(CloseHandle(Handle(handle))); }
    int Replace(const NativePath& source, const NativePath& target) override { return MoveOver(source, target); }
    int Remove(const NativePath& path) override { return OrError(DeleteFileW(NameForCall(path).c_str())); }
    int SyncFolder(const NativePath&) override { return 0; } // the move itself waits for the disk

    int ListNames(const NativePath& folder, std::vector<NativePath>& names) override {
        names.clear();
        WIN32_FIND_DATAW entry = {};
        const HANDLE search = FindFirstFileExW(NameForCall(folder / "*").c_str(), FindExInfoBasic, &entry,
                                               FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
        if (search == INVALID_HANDLE_VALUE) {
            return GetLastError() == ERROR_FILE_NOT_FOUND ? 0 : LastFailure(); // an empty root has not even "."
        }
        do {
            const std::wstring name = entry.cFileName;
            if (name != L"." && name != L"..") {
                names.emplace_back(name);
            }
        } while (FindNextFileW(search, &entry) != 0);
        const DWORD end = GetLastError();
        FindClose(search);
        return end == ERROR_NO_MORE_FILES ? 0 : -ErrnoFromWindows(end);
    }

    std::int64_t ProcessNumber() override {
        return MachineNumber() << ProcessBits | std::int64_t{GetCurrentProcessId()};
    }

    bool ProcessIsAlive(std::int64_t number) override {
        if (number >> ProcessBits != MachineNumber()) {
            return true; // nobody can tell from here
        }
        const auto process = static_cast<DWORD>(number & 0xFFFFFFFF);
        const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, process);
        if (handle == nullptr) {
            return GetLastError() == ERROR_ACCESS_DENIED;
        }
        const bool ended = WaitForSingleObject(handle, 0) == WAIT_OBJECT_0;
        CloseHandle(handle);
        return !ended;
    }

    void Wait(int milliseconds) override { Sleep(static_cast<DWORD>(milliseconds)); }

private:
    static int Open(const NativePath& path, DWORD access, DWORD creation) {
        const HANDLE handle = CreateFileW(NameForCall(path).c_str(), access, EverybodyMay, nullptr, creation,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        return handle != INVALID_HANDLE_VALUE ? static_cast<int>(reinterpret_cast<std::intptr_t>(handle))
                                              : LastFailure();
    }

    static FileStatus StatusOf(const BY_HANDLE_FILE_INFORMATION& found, bool isLink) {
        const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        // On a folder the mark means something else.
        const bool readOnly = !isFolder && (found.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
        const unsigned mode = isFolder ? FolderMode : FileMode;
        return {isFolder && !isLink,
                !isFolder && !isLink,
                isLink,
                Joined(found.nFileSizeHigh, found.nFileSizeLow),
                readOnly ? mode & ~AnyWrite : mode,
                0,
                0,
                Joined(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime)};
    }
};

} // namespace

SystemCalls& RealSystemCalls() {
    static WindowsCalls calls;
    return calls;
}
