#pragma once

#include <QString>
#include <cerrno>

/// An error of the system as messages show it: the number and description that administrators know.
/// A value of number 0 means that nothing failed.
struct SystemError {
    int Number = 0;
    QString Description;

    explicit operator bool() const { return Number != 0; }
    friend bool operator==(const SystemError&, const SystemError&) = default;
};

/// The numbers of the table; every other failure is PathFileAccess.
enum class ErrorNumber {
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    DeviceInputOutput = 57,
    DiskFull = 61,
    InputPastEnd = 62,
    TooManyFiles = 67,
    DeviceUnavailable = 68,
    PermissionDenied = 70,
    DiskNotReady = 71,
    PathFileAccess = 75,
    PathNotFound = 76,
    DialogCancelled = 32755,
};

/// The error with its description ("Disk full"; "Cancel was selected." for a cancelled dialog).
SystemError MakeError(ErrorNumber number);

/// The errno value of a drive without a disk in it; where the system has none, one that no call returns.
#ifdef ENOMEDIUM
constexpr int NoDiskInDrive = ENOMEDIUM;
#else
constexpr int NoDiskInDrive = 20000;
#endif

/// Maps an errno value (ENOSPC, EACCES, ...) to the table; 0 gives no error, an unknown value number 75.
/// ENOENT becomes 53; whoever knows that the folder itself is missing reports 76 instead.
SystemError ErrorFromErrno(int code);
