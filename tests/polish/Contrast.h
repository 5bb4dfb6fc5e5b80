#pragma once

#include <QImage>
#include <QRect>

class QWidget;

/// A picture of a window, several times as large as it is, so that the strokes of its texts show their whole colour.
QImage LargePicture(QWidget& window);

/// The contrast of the text in a part of such a picture (in logical pixels) against what lies behind it: from 1 (none)
/// to 21 (black on white), as the guidelines for accessible contents count it.
double ContrastOfText(const QImage& picture, const QRect& place);

/// The contrast of two colours.
double Contrast(QRgb one, QRgb other);
