#pragma once

class QSize;
class QWidget;

/// The size that a window opens with: `usual` (logical pixels), or as much of it as the screen has room for.
QSize OpeningSize(const QSize& usual);

/// Gives a window with a layout, when it is about to be shown or shows other controls, the least size that its layout
/// needs, and never less than OpeningSize. Where that is more than the screen has room for (a large font on a small
/// screen), the least size is OpeningSize and the contents scroll.
void FitToScreen(QWidget& window, const QSize& usual);
