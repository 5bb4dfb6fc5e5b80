#include "platform/windows/MoveOver.h"

#include "platform/windows/NativeNames.h"
#include "platform/windows/WindowsErrors.h"

#include <cerrno>
#include <vector>
#include <windows.h>

namespace {

constexpr SECURITY_INFORMATION AccessList = DACL_SECURITY_INFORMATION;
constexpr DWORD KeptMarks = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

// The access list of a file as the system stores it; empty when it cannot be read.
std::vector<char> ReadAccessList(const std::wstring& file) {
    DWORD size = 0;
    GetFileSecurityW(file.c_str(), AccessList, nullptr, 0, &size);
    std::vector<char> list(size);
    const bool read = size > 0 && GetFileSecurityW(file.c_str(), AccessList, list.data(), size, &size) != 0;
    return read ? list : std::vector<char>();
}

// Disks without access lists have nothing to keep.
bool KeepsAccessLists(const std::wstring& file) {
    const std::wstring folder = file.substr(0, file.find_last_of(L'\\') + 1);
    std::wstring root(folder.size() + MAX_PATH, L'\0');
    DWORD flags = 0;
    const bool known = GetVolumePathNameW(folder.c_str(), root.data(), static_cast<DWORD>(root.size())) != 0 &&
                       GetVolumeInformationW(root.c_str(), nullptr, 0, nullptr, nullptr, &flags, nullptr, 0) != 0;
    return !known || (flags & FILE_PERSISTENT_ACLS) != 0;
}

// Files of one folder mostly have the same list by inheritance; then nothing has to be set, which a share may forbid.
int CopyAccessList(const std::wstring& from, const std::wstring& to) {
    std::vector<char> wanted = ReadAccessList(from);
    if (!wanted.empty() && wanted == ReadAccessList(to)) {
        return 0;
    }
    if (!wanted.empty() && SetFileSecurityW(to.c_str(), AccessList, wanted.data()) != 0) {
        return 0;
    }
    return KeepsAccessLists(from) ? -EPERM : 0;
}

// The target's own name on the disk, whose case is kept; the name as it was given when there is no such file.
std::wstring NameOnDisk(const std::wstring& target) {
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW(target.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return target;
    }
    FindClose(search);
    return target.substr(0, target.find_last_of(L'\\') + 1) + found.cFileName;
}

// The move says "access denied" for a file that is held open as well as for one that may not be replaced. A file that
// lets itself be opened for deletion, or does not because of others, is only held.
bool IsHeld(const std::wstring& file) {
    const HANDLE handle =
        CreateFileW(file.c_str(), DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle != INVALID_HANDLE_VALUE) {
        CloseHandle(handle);
        return true;
    }
    return GetLastError() == ERROR_SHARING_VIOLATION;
}

} // namespace

int MoveOver(const NativePath& source, const NativePath& target) {
    const std::wstring from = NameForCall(source);
    const std::wstring over = NameOnDisk(NameForCall(target));
    const DWORD marks = GetFileAttributesW(over.c_str());
    const bool exists = marks != INVALID_FILE_ATTRIBUTES;
    if (exists && (marks & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return -EISDIR;
    }
    if (exists) {
        if (const int failure = CopyAccessList(over, from)) {
            return failure;
        }
        if ((marks & KeptMarks) != 0) {
            SetFileAttributesW(from.c_str(), GetFileAttributesW(from.c_str()) | (marks & KeptMarks));
        }
    }
    if (MoveFileExW(from.c_str(), over.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0) {
        return 0;
    }
    const int failure = LastFailure();
    const bool held = failure == -EACCES && exists && (marks & FILE_ATTRIBUTE_READONLY) == 0 && IsHeld(over);
    return held ? -EBUSY : failure;
}
