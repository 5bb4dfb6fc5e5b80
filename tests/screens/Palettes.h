#pragma once

/// Gives the application a light or a dark palette, made readable by the program's style as a desktop's palette is.
void UsePalette(bool dark);
