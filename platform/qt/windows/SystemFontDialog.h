#pragma once

#include "platform/Desktop.h"

/// Windows' own font dialog over the active window, which lists the fonts of the screen and of the default printer. The
/// font of that name is selected when there is one; an empty name selects none.
FontDialogAnswer AskSystemForFont(const QString& fontName, int pointSize);
