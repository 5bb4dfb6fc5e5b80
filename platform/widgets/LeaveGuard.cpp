#include "platform/widgets/LeaveGuard.h"

#include "platform/widgets/Pictures.h"
#include "platform/widgets/TextBox.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QTabBar>

namespace {

LeaveGuard* installedGuard = nullptr;

TextBox* BoxIn(const QWidget& window) {
    TextBox* entered = TextBox::EnteredIn(window);
    return entered != nullptr ? entered : qobject_cast<TextBox*>(window.focusWidget());
}

bool ActsWithoutFocus(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
           qobject_cast<const QTabBar*>(&widget) != nullptr || qobject_cast<const ClickableLabel*>(&widget) != nullptr;
}

// Whether a press there does something: it would take the focus, or it acts without.
bool ActsOnPress(const QWidget& widget) {
    for (const QWidget* at = &widget; at != nullptr && !at->isWindow(); at = at->parentWidget()) {
        if ((at->focusPolicy() & Qt::ClickFocus) != 0 || ActsWithoutFocus(*at)) {
            return at->isEnabled();
        }
    }
    return false;
}

bool StartsElsewhere(const QWidget& receiver, const TextBox& box) {
    const auto* label = qobject_cast<const QLabel*>(&receiver);
    const bool ownLabel = label != nullptr && label->buddy() == &box; // its access key leads into the box itself
    return &receiver != &box && !box.isAncestorOf(&receiver) && !ownLabel;
}

} // namespace

void LeaveGuard::Install() {
    if (installedGuard == nullptr) {
        installedGuard = new LeaveGuard(qApp);
        qApp->installEventFilter(installedGuard);
        connect(installedGuard, &QObject::destroyed, [] { installedGuard = nullptr; });
    }
}

void LeaveGuard::RefusePressIn(const QWidget* window) {
    installedGuard->refusedIn = window;
    // The press arrives before the event loop goes on; one that never arrives must not cost a later one.
    QMetaObject::invokeMethod(
        installedGuard, [guard = installedGuard] { guard->refusedIn = nullptr; }, Qt::QueuedConnection);
}

bool LeaveGuard::eventFilter(QObject* receiver, QEvent* event) {
    const QEvent::Type type = event->type();
    const bool press = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (type == QEvent::MouseButtonRelease && receiver == refusedPress) {
        refusedPress = nullptr;
        return true;
    }
    auto* widget = qobject_cast<QWidget*>(receiver);
    if (widget != nullptr && type == QEvent::FocusIn) {
        return RefusesFocus(*widget);
    }
    if (widget == nullptr || (!press && type != QEvent::Shortcut)) {
        return false;
    }
    const bool refused = Refuses(*widget, type);
    if (press) {
        refusedPress = refused ? receiver : nullptr;
    }
    return refused;
}

// A box that is left in the usual way has run its rule before; here comes a focus that was moved while the window was
// not the active one, which tells no box of it.
bool LeaveGuard::RefusesFocus(QWidget& widget) {
    const TextBox* box = TextBox::EnteredIn(*widget.window());
    return box != nullptr && StartsElsewhere(widget, *box) && !TextBox::LeaveIn(*widget.window());
}

bool LeaveGuard::Refuses(QWidget& widget, QEvent::Type type) {
    const bool press = type != QEvent::Shortcut;
    if (press && refusedIn == widget.window()) {
        refusedIn = nullptr;
        return true;
    }
    TextBox* box = BoxIn(*widget.window());
    if (box == nullptr || !StartsElsewhere(widget, *box) || (press && !ActsOnPress(widget))) {
        return false;
    }
    if (!box->Leave()) {
        box->setFocus(Qt::OtherFocusReason); // code may have moved it
        return true;
    }
    if (!press && widget.focusPolicy() != Qt::NoFocus && widget.isEnabled()) {
        widget.setFocus(Qt::ShortcutFocusReason);
    }
    return false;
}
