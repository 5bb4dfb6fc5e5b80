#pragma once

#include "platform/SystemCalls.h"

/// Where the symbolic link or junction leads, as it is stored, relative or whole; returns 0 or minus the errno value
/// (EINVAL when it is neither).
int ReadReparsePoint(const NativePath& path, NativePath& target);
