#pragma once

class QSize;
class QWidget;

/// Gives a window with a layout, when it is about to be shown or shows other controls, the least size that its layout
/// needs, and never less than `usual` (logical pixels). Where that is more than the screen has (a large font on a small
/// screen), the least size is `usual` and the contents scroll.
void FitToScreen(QWidget& window, const QSize& usual);
