#pragma once

#include <cstdint>

/// Scans of many bytes, about as fast as they can be read.

/// How many bytes of [bytes, bytes + size) end a line: each LF that does not follow a CR, and each CR. `before` is the
/// byte in front of them.
std::int64_t CountLineEnds(const char* bytes, std::int64_t size, char before);

/// How many bytes at the start of [bytes, bytes + size) are certainly ASCII; found by blocks, so it may be too few.
std::int64_t AsciiAtStart(const char* bytes, std::int64_t size);
