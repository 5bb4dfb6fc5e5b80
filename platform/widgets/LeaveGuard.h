#pragma once

#include <QObject>

/// Sees every event before its receiver and runs the lost-focus rule of the text box that has the focus when the event
/// would start something elsewhere: a mouse press on another control, a button's access key. When the rule refuses,
/// the event goes no further. One guard serves the whole program; the first text box installs it.
class LeaveGuard : public QObject {
    Q_OBJECT

public:
    static void Install();

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    using QObject::QObject;
    QObject* refusedPress = nullptr; // a release belongs to the press that was refused
};
