#include "platform/widgets/TextBox.h"

#include "platform/CodePage.h"
#include "platform/widgets/ButtonAccess.h"
#include "platform/widgets/LeaveGuard.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPointer>
#include <utility>

namespace {

QPointer<TextBox> lastEntered;

// The focus goes to a menu, a message box or another program and comes back: the user has not left the box.
bool StaysInside(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

} // namespace

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    LeaveGuard::Install();
    InstallButtonAccess();
    setAcceptDrops(false); // a drop would change a box that nobody enters or leaves
    connect(this, &QLineEdit::textChanged, this, &TextBox::KeepToCodePage);
}

void TextBox::SetLostFocusRule(LostFocusRule rule) {
    lostFocusRule = std::move(rule);
}

bool TextBox::Leave() {
    if (!entered || runningRule) {
        return !runningRule;
    }
    runningRule = true;
    const QPointer<TextBox> self(this);
    const bool accepted = !lostFocusRule || lostFocusRule();
    if (self) {
        runningRule = false;
        entered = !accepted;
    }
    return accepted;
}

TextBox* TextBox::EnteredIn(const QWidget& window) {
    TextBox* box = lastEntered;
    const bool there = box != nullptr && box->window() == &window && box->isEnabled() && box->isVisible();
    return there && box->entered && !box->runningRule ? box : nullptr;
}

bool TextBox::LeaveIn(const QWidget& window) {
    TextBox* box = EnteredIn(window);
    if (box == nullptr || box->Leave()) {
        return true;
    }
    box->setFocus(Qt::OtherFocusReason);
    return false;
}

void TextBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    lastEntered = this;
    if (std::exchange(away, false) && StaysInside(event->reason())) {
        return;
    }
    selectAll();
    selectOnRelease = event->reason() == Qt::MouseFocusReason;
    if (!std::exchange(entered, true)) {
        Q_EMIT GotFocus();
    }
}

// Reached with the rule still to run when a press or code moved the focus; a refusal brings it back before the other
// control learns of it. The press itself comes later; the guard stops it.
void TextBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    away = StaysInside(event->reason());
    const bool leaving = !away && window()->isVisible() && isEnabled() && isVisible();
    if (!leaving && !away) {
        lastEntered = nullptr; // taken away from the user, not left
    }
    if (leaving && !Leave() && !runningRule) {
        if (event->reason() == Qt::MouseFocusReason) {
            LeaveGuard::RefusePressIn(window());
        }
        setFocus(Qt::OtherFocusReason);
    }
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        focusNextPrevChild(true);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void TextBox::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    if (selectOnRelease) {
        selectAll();
    }
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(selectOnRelease, false)) {
        selectAll();
    }
}

bool TextBox::focusNextPrevChild(bool next) {
    return Leave() ? QLineEdit::focusNextPrevChild(next) : true;
}

// Each character that the code page lacks is replaced where it stands, so that Undo goes on working.
void TextBox::KeepToCodePage() {
    entered = entered || (hasFocus() && !runningRule); // changed after the rule had run: it is to run again
    const QString now = text();
    qsizetype at = 0;
    while (at < now.size() && CodePageHas(now[at])) {
        ++at;
    }
    if (at == now.size()) {
        return;
    }
    const bool pair = now[at].isHighSurrogate() && at + 1 < now.size() && now[at + 1].isLowSurrogate();
    const int cursor = cursorPosition();
    setSelection(static_cast<int>(at), pair ? 2 : 1);
    insert(QStringLiteral("?")); // comes here again for the next one
    setCursorPosition(cursor - (pair && cursor > at ? 1 : 0));
}
