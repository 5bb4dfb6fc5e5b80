#include "platform/widgets/LeaveGuard.h"

#include "platform/widgets/Pictures.h"
#include "platform/widgets/TextBox.h"

#include <QApplication>
#include <QEvent>
#include <QShortcutEvent>

namespace {

TextBox* FocusedBox() {
    return qobject_cast<TextBox*>(QApplication::focusWidget());
}

// Whether a press there does something: it would take the focus or is a picture or label that can be clicked.
bool ActsOnPress(const QWidget& widget) {
    for (const QWidget* at = &widget; at != nullptr && !at->isWindow(); at = at->parentWidget()) {
        if ((at->focusPolicy() & Qt::ClickFocus) != 0 || qobject_cast<const ClickableLabel*>(at) != nullptr) {
            return at->isEnabled();
        }
    }
    return false;
}

bool StartsElsewhere(const QWidget& receiver, const TextBox& box) {
    return &receiver != &box && !box.isAncestorOf(&receiver) && receiver.window() == box.window();
}

} // namespace

void LeaveGuard::Install() {
    static LeaveGuard* guard = nullptr;
    if (guard == nullptr) {
        guard = new LeaveGuard(qApp);
        qApp->installEventFilter(guard);
        connect(guard, &QObject::destroyed, [] { guard = nullptr; });
    }
}

bool LeaveGuard::eventFilter(QObject* receiver, QEvent* event) {
    const QEvent::Type type = event->type();
    const bool press = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (type == QEvent::MouseButtonRelease && receiver == refusedPress) {
        refusedPress = nullptr;
        return true;
    }
    if (!press && type != QEvent::Shortcut) {
        return false;
    }
    TextBox* box = FocusedBox();
    const auto* widget = qobject_cast<QWidget*>(receiver);
    if (box == nullptr || widget == nullptr || !StartsElsewhere(*widget, *box) || (press && !ActsOnPress(*widget))) {
        return false;
    }
    if (!(press && box->TakeRefusedPress()) && box->Leave()) {
        if (type == QEvent::Shortcut && widget->focusPolicy() != Qt::NoFocus && widget->isEnabled()) {
            qobject_cast<QWidget*>(receiver)->setFocus(Qt::ShortcutFocusReason);
        }
        return false;
    }
    refusedPress = press ? receiver : nullptr;
    return true;
}
