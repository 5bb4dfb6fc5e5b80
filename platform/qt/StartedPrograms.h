#pragma once

#include "platform/qt/HelperPrograms.h"

#include <functional>

/// Starts a command and goes on at once; false when it cannot be started. The command lives on when this program ends.
/// When it ends with failure within ten seconds, `whenFailed` is called from the event loop: an opener that finds
/// nothing to show a file with says so by its exit status. Never on Windows, whose explorer.exe always ends with 1.
bool StartWatched(const HelperCommand& command, std::function<void()> whenFailed);
