#pragma once

#include <QList>
#include <QRect>
#include <QString>

class QWidget;

/// A text that a window shows.
struct TextPlace {
    QString Name; ///< of its control
    QRect Place;  ///< of the text alone, in the window's coordinates
};

/// Every text on a window that is visible: captions, titles, entries of lists, contents of boxes.
QList<TextPlace> TextPlacesOf(const QWidget& window);
