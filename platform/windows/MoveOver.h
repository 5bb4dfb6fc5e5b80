#pragma once

#include "platform/SystemCalls.h"

/// Moves `source` over `target` in one step that a kill cannot divide, after giving it the target's access list and its
/// hidden and system marks; a target that does not exist is made. The target keeps its name's case. Returns 0 or minus
/// the errno value: EBUSY while another program holds one of the files, EPERM when the access list cannot be kept
/// (whoever could read the old file might not read the new one, or the other way round), EACCES when access is refused.
int MoveOver(const NativePath& source, const NativePath& target);
