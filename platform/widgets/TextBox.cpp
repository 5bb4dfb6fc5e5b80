#include "platform/widgets/TextBox.h"

#include "platform/CodePage.h"
#include "platform/widgets/LeaveGuard.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <utility>

namespace {

// The focus goes to a menu, a message box or another program and comes back: the user has not left the box.
bool StaysInside(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

} // namespace

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    LeaveGuard::Install();
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

void TextBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
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
// control learns of it. The press itself comes later, and the guard asks what became of it.
void TextBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    away = StaysInside(event->reason());
    const bool leaving = !away && window()->isVisible() && isEnabled() && isVisible();
    if (leaving && !Leave() && !runningRule) {
        refusedPress = event->reason() == Qt::MouseFocusReason;
        setFocus(Qt::OtherFocusReason);
    }
}

bool TextBox::TakeRefusedPress() {
    return std::exchange(refusedPress, false);
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

void TextBox::KeepToCodePage() {
    const QString kept = OnlyCodePage(text());
    if (kept == text()) {
        return;
    }
    const qsizetype shorter = text().size() - kept.size(); // a surrogate pair becomes one character
    const int cursor = cursorPosition();
    setText(kept);
    setCursorPosition(cursor - static_cast<int>(shorter));
}
