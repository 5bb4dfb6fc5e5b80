#include "platform/SystemError.h"

#include <cerrno>
#include <gtest/gtest.h>

TEST(SystemError, EveryNumberHasItsDescription) {
    const struct {
        int Number;
        const char* Description;
    } cases[] = {
        {6, "Overflow"},
        {9, "Subscript out of range"},
        {13, "Type mismatch"},
        {52, "Bad file name or number"},
        {53, "File not found"},
        {57, "Device I/O error"},
        {61, "Disk full"},
        {62, "Input past end of file"},
        {67, "Too many files"},
        {68, "Device unavailable"},
        {70, "Permission denied"},
        {71, "Disk not ready"},
        {75, "Path/File access error"},
        {76, "Path not found"},
        {32755, "Cancel was selected."},
    };
    for (const auto& row : cases) {
        const SystemError error = MakeError(static_cast<ErrorNumber>(row.Number));
        EXPECT_EQ(error.Number, row.Number);
        EXPECT_EQ(error.Description, QString::fromLatin1(row.Description));
        EXPECT_TRUE(error);
    }
    EXPECT_FALSE(SystemError());
    EXPECT_EQ(MakeError(static_cast<ErrorNumber>(5)).Number, 75);
}

TEST(SystemError, EveryErrorOfTheSystemHasANumber) {
    const struct {
        int Code;
        int Number;
    } cases[] = {
        {0, 0},        {ENOENT, 53},  {EIO, 57},          {ENOSPC, 61}, {EFBIG, 61},         {EMFILE, 67},
        {ENFILE, 67},  {ENODEV, 68},  {ENXIO, 68},        {EACCES, 70}, {EPERM, 70},         {EROFS, 70},
        {EBUSY, 70},   {ETXTBSY, 70}, {ENAMETOOLONG, 52}, {EINVAL, 52}, {EILSEQ, 52},        {ELOOP, 52},
        {ENOTDIR, 76}, {EISDIR, 75},  {EEXIST, 75},       {EXDEV, 75},  {EINTR, 75},         {ENOMEM, 75},
        {ENOTSUP, 75}, {EAGAIN, 75},  {99999, 75},        {-1, 75},     {NoDiskInDrive, 71},
    };
#ifdef EDQUOT
    EXPECT_EQ(ErrorFromErrno(EDQUOT).Number, 61);
#endif
    for (const auto& row : cases) {
        EXPECT_EQ(ErrorFromErrno(row.Code).Number, row.Number) << row.Code;
        EXPECT_EQ(ErrorFromErrno(row.Code).Description.isEmpty(), row.Number == 0) << row.Code;
    }
}
