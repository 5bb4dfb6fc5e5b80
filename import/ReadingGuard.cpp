#include "import/ReadingGuard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {

bool IsInput(const QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

bool IsEscape(const QEvent& event) {
    return event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

} // namespace

ReadingGuard::ReadingGuard(QWidget& windowToGuard, QWidget& cancelToPass)
    : window(windowToGuard), cancel(cancelToPass) {
    qApp->installEventFilter(this);
}

bool ReadingGuard::eventFilter(QObject* receiver, QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(receiver);
    if (widget == nullptr || widget->window() != &window || !IsInput(*event)) {
        return false;
    }
    if (IsEscape(*event)) {
        Q_EMIT EscapePressed();
        return true;
    }
    return widget != &cancel;
}
