#pragma once

#include "platform/SystemCalls.h"
#include "platform/SystemError.h"

#include <QByteArray>

/// Saves `bytes` as the whole content of `target`, so that at every moment, also after a kill, a power loss or an
/// error, the target is wholly the old file or wholly the new one. Success means that the new bytes were read back.
///
/// A symbolic link is followed to the file that it names. The new file is built beside the target under a temporary
/// name, written, synced, given the target's mode and, where allowed, owner, and moved over it. Where the folder lets
/// no new file be made but the file itself can be written, it is written in place. Temporary files that a killed run
/// left for this target are removed first. Returns the error as a value, with the temporary file gone and the old file
/// whole: 76 when the folder is missing, 75 for a folder in place of the file.
SystemError SafeSave(SystemCalls& calls, const NativePath& path, const QByteArray& bytes);
