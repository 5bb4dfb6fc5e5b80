#pragma once

#include "platform/CaptionLanguage.h"

#include <functional>

class QWidget;

/// Runs a save in a thread of its own and returns at its end. When it takes long, the pointer shows that the program is
/// busy, and soon after a notice in the window `over` (none: in no window) says what it does. The windows stay painted;
/// nothing that the user presses acts before the end.
void RunSlowSave(const std::function<void()>& save, QWidget* over, CaptionLanguage language);

/// Lets everything happen but what the user presses, which waits.
void ProcessAllButPresses();
