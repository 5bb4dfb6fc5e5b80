#pragma once

#include <QEvent>
#include <QObject>

class QWidget;

/// Sees every event before its receiver and runs the lost-focus rule of the text box that has the focus when the event
/// would start something elsewhere: a mouse press on another control, a button's access key, the focus that another
/// control is given. When the rule refuses,
/// the event goes no further. One guard serves the whole program; the first text box installs it.
class LeaveGuard : public QObject {
    Q_OBJECT

public:
    /// Makes the guard see the program's events; once is enough, more do no harm.
    static void Install();

    /// The rule of a box in this window has just refused the press that is on its way to another control there; the
    /// guard lets that press go no further. The rule may have shown a message, so another window may be active.
    static void RefusePressIn(const QWidget* window);

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    using QObject::QObject;
    QObject* refusedPress = nullptr;    // a release belongs to the press that was refused
    const QWidget* refusedIn = nullptr; // the window of a press that is still to come

    static bool RefusesFocus(QWidget& widget);
    bool Refuses(QWidget& widget, QEvent::Type type);
};
