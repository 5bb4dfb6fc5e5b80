#include "import/ReadingGuard.h"

#include "platform/widgets/UserInput.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {

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
    if (widget == nullptr || widget->window() != &window || !IsUserInput(*event)) {
        return false;
    }
    if (IsEscape(*event)) {
        Q_EMIT EscapePressed();
        return true;
    }
    return widget != &cancel;
}
