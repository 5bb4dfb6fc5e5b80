#pragma once

#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>

/// The display that the program runs on, worked like a person does: real mouse and key events from the display server.
/// Every routine throws std::runtime_error when the display refuses.

void ClickAt(const QPoint& place);
void DoubleClickAt(const QPoint& place);
/// The three parts of a drag with the left button.
void PressButtonAt(const QPoint& place);
void MoveMouseTo(const QPoint& place);
void ReleaseButton();
/// How many times the mouse was moved so far: a test without the mouse sees none.
int MouseMoves();
/// Presses a key or chord, such as "Tab", "alt+x" or "shift+Tab".
void PressKey(const QString& chord);
/// Types characters of the basic Latin alphabet.
void TypeText(const QString& text);

/// The title of the window that the display server gives the keys to; empty when there is none.
QString ActiveTitle();
/// Asks the window manager to make the window of that title the active one.
void GiveKeysTo(const QString& title);
/// Where the inside of that window begins.
QPoint ActiveOrigin();

/// Saves a part of the screen as a PNG once it stands still.
void SavePicture(const QRect& part, const QString& file);
