#include "platform/SystemError.h"

namespace {

struct Row {
    ErrorNumber number;
    const char* description;
};

constexpr Row Rows[] = {
    {ErrorNumber::Overflow, "Overflow"},
    {ErrorNumber::SubscriptOutOfRange, "Subscript out of range"},
    {ErrorNumber::TypeMismatch, "Type mismatch"},
    {ErrorNumber::BadFileName, "Bad file name or number"},
    {ErrorNumber::FileNotFound, "File not found"},
    {ErrorNumber::DeviceInputOutput, "Device I/O error"},
    {ErrorNumber::DiskFull, "Disk full"},
    {ErrorNumber::InputPastEnd, "Input past end of file"},
    {ErrorNumber::TooManyFiles, "Too many files"},
    {ErrorNumber::DeviceUnavailable, "Device unavailable"},
    {ErrorNumber::PermissionDenied, "Permission denied"},
    {ErrorNumber::DiskNotReady, "Disk not ready"},
    {ErrorNumber::PathFileAccess, "Path/File access error"},
    {ErrorNumber::PathNotFound, "Path not found"},
    {ErrorNumber::DialogCancelled, "Cancel was selected."},
};

} // namespace

SystemError MakeError(ErrorNumber number) {
    for (const Row& row : Rows) {
        if (row.number == number) {
            return {static_cast<int>(number), QString::fromLatin1(row.description)};
        }
    }
    return MakeError(ErrorNumber::PathFileAccess);
}

SystemError ErrorFromErrno(int code) {
    switch (code) {
    case 0:
        return {};
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ:
    case ELOOP:
        return MakeError(ErrorNumber::BadFileName);
    case ENOENT:
        return MakeError(ErrorNumber::FileNotFound);
    case EIO:
        return MakeError(ErrorNumber::DeviceInputOutput);
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
        return MakeError(ErrorNumber::DiskFull);
    case EMFILE:
    case ENFILE:
        return MakeError(ErrorNumber::TooManyFiles);
    case ENODEV:
    case ENXIO:
        return MakeError(ErrorNumber::DeviceUnavailable);
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
#ifdef ETXTBSY
    case ETXTBSY:
#endif
        return MakeError(ErrorNumber::PermissionDenied);
    case NoDiskInDrive:
        return MakeError(ErrorNumber::DiskNotReady);
    case ENOTDIR:
        return MakeError(ErrorNumber::PathNotFound);
    default:
        return MakeError(ErrorNumber::PathFileAccess);
    }
}
