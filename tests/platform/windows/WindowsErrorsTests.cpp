#include "platform/SystemError.h"
#include "platform/windows/WindowsErrors.h"

#include <gtest/gtest.h>
#include <windows.h>

TEST(WindowsErrors, EveryCodeHasItsNumber) {
    const struct {
        unsigned long Code;
        int Number;
    } cases[] = {
        {ERROR_SUCCESS, 0},
        {ERROR_FILE_NOT_FOUND, 53},
        {ERROR_PATH_NOT_FOUND, 76},
        {ERROR_DIRECTORY, 76},
        {ERROR_TOO_MANY_OPEN_FILES, 67},
        {ERROR_ACCESS_DENIED, 70},
        {ERROR_WRITE_PROTECT, 70},
        {ERROR_SHARING_VIOLATION, 70},
        {ERROR_LOCK_VIOLATION, 70},
        {ERROR_USER_MAPPED_FILE, 70},
        {ERROR_DELETE_PENDING, 70},
        {ERROR_DISK_FULL, 61},
        {ERROR_HANDLE_DISK_FULL, 61},
        {1295, 61}, // the quota is reached
        {ERROR_INVALID_DRIVE, 68},
        {ERROR_BAD_UNIT, 68},
        {ERROR_BAD_NETPATH, 68},
        {ERROR_BAD_NET_NAME, 68},
        {ERROR_DEV_NOT_EXIST, 68},
        {ERROR_NOT_READY, 71},
        {ERROR_NO_MEDIA_IN_DRIVE, 71},
        {ERROR_NETWORK_UNREACHABLE, 71},
        {ERROR_CRC, 57},
        {ERROR_READ_FAULT, 57},
        {ERROR_WRITE_FAULT, 57},
        {ERROR_NETNAME_DELETED, 57},
        {ERROR_IO_DEVICE, 57},
        {ERROR_INVALID_NAME, 52},
        {ERROR_BAD_PATHNAME, 52},
        {ERROR_FILENAME_EXCED_RANGE, 52},
        {ERROR_CANT_RESOLVE_FILENAME, 52},
        {ERROR_FILE_EXISTS, 75},
        {ERROR_NOT_SAME_DEVICE, 75},
        {ERROR_NOT_ENOUGH_MEMORY, 75},
        {ERROR_INVALID_HANDLE, 75},
        {ERROR_CALL_NOT_IMPLEMENTED, 75},
        {0xFFFFFFFF, 75},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(ErrorFromErrno(ErrnoFromWindows(row.Code)).Number, row.Number) << row.Code;
    }
}

TEST(WindowsErrors, AFailureIsNeverZero) {
    SetLastError(ERROR_SUCCESS);
    EXPECT_LT(LastFailure(), 0);
    SetLastError(ERROR_DISK_FULL);
    EXPECT_EQ(LastFailure(), -ENOSPC);
}
