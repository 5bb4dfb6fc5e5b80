#include "platform/windows/WindowsErrors.h"

#include "platform/SystemError.h"

#include <cerrno>
#include <windows.h>

namespace {

struct Row {
    DWORD code;
    int error;
};

// Codes that the compiler's headers leave out.
constexpr DWORD DiskQuotaExceeded = 1295;
constexpr DWORD StoppedOnSymlink = 681;

constexpr Row Rows[] = {
    {ERROR_SUCCESS, 0},
    {ERROR_FILE_NOT_FOUND, ENOENT},
    {ERROR_PATH_NOT_FOUND, ENOTDIR},
    {ERROR_DIRECTORY, ENOTDIR},
    {ERROR_TOO_MANY_OPEN_FILES, EMFILE},
    {ERROR_NO_MORE_SEARCH_HANDLES, EMFILE},
    {ERROR_ACCESS_DENIED, EACCES},
    {ERROR_NETWORK_ACCESS_DENIED, EACCES},
    {ERROR_PRIVILEGE_NOT_HELD, EACCES},
    {ERROR_WRITE_PROTECT, EROFS},
    {ERROR_FILE_READ_ONLY, EROFS},
    {ERROR_SHARING_VIOLATION, EBUSY},
    {ERROR_LOCK_VIOLATION, EBUSY},
    {ERROR_USER_MAPPED_FILE, EBUSY},
    {ERROR_DELETE_PENDING, EBUSY},
    {ERROR_BUSY, EBUSY},
    {ERROR_INVALID_HANDLE, EBADF},
    {ERROR_NOT_ENOUGH_MEMORY, ENOMEM},
    {ERROR_OUTOFMEMORY, ENOMEM},
    {ERROR_HANDLE_DISK_FULL, ENOSPC},
    {ERROR_DISK_FULL, ENOSPC},
    {DiskQuotaExceeded, ENOSPC},
    {ERROR_NOT_ENOUGH_QUOTA, ENOSPC},
    {ERROR_FILE_TOO_LARGE, EFBIG},
    {ERROR_FILE_EXISTS, EEXIST},
    {ERROR_ALREADY_EXISTS, EEXIST},
    {ERROR_NOT_SAME_DEVICE, EXDEV},
    {ERROR_INVALID_NAME, EINVAL},
    {ERROR_BAD_PATHNAME, EINVAL},
    {ERROR_INVALID_PARAMETER, EINVAL},
    {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
    {ERROR_BUFFER_OVERFLOW, ENAMETOOLONG},
    {ERROR_CANT_RESOLVE_FILENAME, ELOOP},
    {StoppedOnSymlink, ELOOP},
    {ERROR_INVALID_DRIVE, ENODEV},
    {ERROR_BAD_UNIT, ENODEV},
    {ERROR_DEV_NOT_EXIST, ENODEV},
    {ERROR_BAD_DEVICE, ENODEV},
    {ERROR_BAD_NETPATH, ENODEV},
    {ERROR_BAD_NET_NAME, ENODEV},
    {ERROR_NOT_READY, NoDiskInDrive},
    {ERROR_NO_MEDIA_IN_DRIVE, NoDiskInDrive},
    {ERROR_UNRECOGNIZED_MEDIA, NoDiskInDrive},
    {ERROR_UNRECOGNIZED_VOLUME, NoDiskInDrive},
    {ERROR_DEVICE_NOT_CONNECTED, NoDiskInDrive},
    {ERROR_NETWORK_UNREACHABLE, NoDiskInDrive},
    {ERROR_HOST_UNREACHABLE, NoDiskInDrive},
    {ERROR_CRC, EIO},
    {ERROR_SEEK, EIO},
    {ERROR_SECTOR_NOT_FOUND, EIO},
    {ERROR_WRITE_FAULT, EIO},
    {ERROR_READ_FAULT, EIO},
    {ERROR_GEN_FAILURE, EIO},
    {ERROR_IO_DEVICE, EIO},
    {ERROR_FILE_CORRUPT, EIO},
    {ERROR_DISK_CORRUPT, EIO},
    {ERROR_NETNAME_DELETED, EIO},
    {ERROR_UNEXP_NET_ERR, EIO},
    {ERROR_SEM_TIMEOUT, EIO},
};

} // namespace

int ErrnoFromWindows(unsigned long code) {
    for (const Row& row : Rows) {
        if (row.code == code) {
            return row.error;
        }
    }
    return ENOTSUP;
}

int LastFailure() {
    const DWORD code = GetLastError();
    return -ErrnoFromWindows(code == ERROR_SUCCESS ? DWORD{ERROR_GEN_FAILURE} : code);
}
