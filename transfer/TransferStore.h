#pragma once

#include "transfer/TransferFile.h"

/// The Transfer Program's configuration file in the program folder.

/// The lock of the Transfer Program's options: 1 locked, else unlocked. Shared by the whole run, changed in memory by
/// the window, written only by a save and read again whenever the window loads.
extern std::int16_t TransferLock;

/// Reads the file of that bare name into `settings` and TransferLock. After any failure, a missing file included, the
/// lock is 1 and what was not read keeps what it held; false tells of it. Shows no message. A file that could not be
/// read to its end is remembered, so that the next save keeps a copy of it.
bool LoadTransferFile(const QString& name, TransferSettings& settings);

/// Writes the file with TransferLock as its lock, then deletes the destination path file, which the Transfer Program
/// makes anew as it needs. Returns the error that kept the old file in place; the destination path file then stays,
/// too.
SystemError SaveTransferFile(const QString& name, const TransferSettings& settings, const QString& systemName);

inline constexpr char16_t DestinationPathFile[] = u"GWT_DestPath.cfg";
