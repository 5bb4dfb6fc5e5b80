#pragma once

#include "platform/SystemCalls.h"

#include <QByteArray>

/// Writes a file in place, for a folder that lets no new file be made beside it. The file is grown by line ends first,
/// so that a full disk is met while every old byte still stands; then everything is written in one call, a shorter text
/// with line ends up to the old size; then those are cut off. So a kill between two calls leaves the old or the new
/// file, at worst with empty lines behind it. After a failure the old bytes are put back, as well as the system lets
/// that be done. Returns 0 when the new bytes were read
/// back, else the errno value. `file` is no symbolic link.
int WriteInPlace(SystemCalls& calls, const NativePath& file, const QByteArray& bytes);
