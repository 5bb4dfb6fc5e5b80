#pragma once

/// The errno value that stands for an error code of Windows (GetLastError), so that all of the program speaks of errors
/// in one way; 0 for 0. A code that the table does not name is ENOTSUP, which messages show as
/// number 75. A drive without a disk is NoDiskInDrive (SystemError.h).
int ErrnoFromWindows(unsigned long code);

/// Minus the errno value of the calling thread's last error, never 0.
int LastFailure();
