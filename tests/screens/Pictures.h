#pragma once

#include <QString>

class QWidget;

/// Takes the pictures of one run, numbered in the order in which they are taken.
class PictureTaker {
public:
    /// Names begin with the folder and `prefix`: "FOLDER/english-light-100-03-NAME.png".
    PictureTaker(QString folder, QString prefix);

    /// Shows the window, waits until it is the active one and saves its picture. A control that is clipped is told
    /// of on the standard output.
    void Take(QWidget& window, const char* name);

    int Count() const { return count; }
    int ClippedCount() const { return clipped; }

private:
    QString folder;
    QString prefix;
    int count = 0;
    int clipped = 0;
};
