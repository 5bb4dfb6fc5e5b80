#pragma once

#include <QFont>

/// Gives the application a light or a dark palette, made readable by the program's style as a desktop's palette is.
void UsePalette(bool dark);

/// The font with letters a fifth larger, as desktops offer it to those who see badly.
QFont Larger(QFont font);
