#pragma once

#include "platform/Desktop.h"

class QWidget;

/// Windows' own font dialog over that window (or none), which lists the fonts of the screen and of the default printer.
/// The font of that name is selected when there is one; an empty name selects none.
FontDialogAnswer AskSystemForFont(const QWidget* owner, const QString& fontName, int pointSize);
