#pragma once

#include "platform/SystemCalls.h"

#include <string>

/// Names as the calls of Windows take and give them.

/// The name made whole by the system: from the drive's or the process's current folder on, "." and ".." resolved; empty
/// when the system refuses it.
std::wstring FullName(const std::wstring& name);

/// The path for a call: one that is too long for the old limit of 260 characters gets the prefix that lifts it, because
/// the registry may still forbid long paths to programs whose manifest asks for them.
std::wstring NameForCall(const NativePath& path);

/// The path without the prefixes `\\?\` and `\\?\UNC\` that calls may give.
NativePath WithoutPrefix(const std::wstring& name);
