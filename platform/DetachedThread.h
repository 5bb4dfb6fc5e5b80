#pragma once

#include <functional>

/// Starts work in a thread of its own that nobody waits for; the end of the program ends it, too. False when the system
/// has no thread to give: nothing was started. The work must not throw.
bool StartDetachedThread(std::function<void()> work);
