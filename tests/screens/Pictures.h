#pragma once

#include "tests/screens/Viewer.h"

#include <QSize>
#include <QString>

/// Takes the pictures of one run.
class PictureTaker : public Viewer {
public:
    /// With a prefix, names have it and the picture's number: "FOLDER/english-light-100-03-NAME.png". Without one they
    /// are "FOLDER/NAME.png", and the files are small: at most 256 colours, the rarer ones being replaced.
    /// With a screen (logical pixels) every window fills it.
    PictureTaker(QString folder, QString prefix, QSize screen);

    /// Shows the window, waits until it is the active one and saves its picture. A control that is clipped is told
    /// of on the standard output.
    void Take(QWidget& window, const char* name) override;

    int Count() const { return count; }
    int ClippedCount() const { return clipped; }

private:
    QString FileFor(const char* name) const;

    QString folder;
    QString prefix;
    QSize screen;
    int count = 0;
    int clipped = 0;
};
