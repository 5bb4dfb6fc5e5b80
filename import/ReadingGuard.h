#pragma once

#include <QObject>

class QWidget;

/// While a long reading goes on, the window stays alive but takes nothing except its Cancel button and Escape.
/// Works from its making to its end.
class ReadingGuard : public QObject {
    Q_OBJECT

public:
    ReadingGuard(QWidget& window, QWidget& cancel);

    bool eventFilter(QObject* receiver, QEvent* event) override;

Q_SIGNALS:
    void EscapePressed();

private:
    QWidget& window;
    QWidget& cancel;
};
