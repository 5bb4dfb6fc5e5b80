#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>
#include <QString>

/// A control as it stands on the screen. Places are in device pixels of the screen.
struct SeenControl {
    QString Name; ///< its objectName; buttons of a message box have none
    QString Kind; ///< its class
    QString Text; ///< what it shows; a button's text with its "&"
    bool Visible = false;
    bool Enabled = false;
    bool Focused = false;
    bool Checked = false;
    QString CoveredBy; ///< what a click on its middle would reach instead, or empty
    QRect Place;       ///< the part of it that can be seen
};

/// A window on the screen.
struct SeenWindow {
    QString Name;
    QString Title;
    bool Active = false; ///< it has the keyboard
    int Drags = 0;       ///< the drags that it has begun; X11 keeps those that are over for a while
    QRect Place;         ///< with its frame
    QList<SeenControl> Controls;

    /// The control of that name, or the unnamed button of that text (without "&"); throws an error that lists the names
    /// there are when there is none.
    const SeenControl& Control(const QString& nameOrText) const;
    bool Has(const QString& nameOrText) const;
    /// The name of the control that has the keyboard; empty for none, and for the toolkit's own parts of one.
    QString Focus() const;
};

/// Everything that the program shows at one moment.
struct SeenScreen {
    QList<SeenWindow> Windows;

    /// The window of that title, or null.
    const SeenWindow* Window(const QString& title) const;
    /// The titles, for messages.
    QString Titles() const;
};

/// Reads one line of the probe's answers; throws when it is none.
SeenScreen ReadAnswer(const QByteArray& line);
