#pragma once

#include "platform/SystemCalls.h"

#include <optional>

/// The name, beside the target, of the file that a save builds: `.NAME.NUMBER.tmp`, where NUMBER tells the run. A long
/// name is stood for by its hash, so that the temporary one is not too long for the disk.
NativePath TemporaryName(const NativePath& target, std::int64_t process);

/// The number of the run when `name` is a temporary name of a save of `target`; nothing for any other name.
std::optional<std::int64_t> ProcessOfTemporaryName(const NativePath& target, const NativePath& name);
