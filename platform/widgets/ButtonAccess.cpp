#include "platform/widgets/ButtonAccess.h"

#include "platform/SaveThread.h"
#include "platform/widgets/TextBox.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QToolButton>

namespace {

QAccessible::Role RoleOf(const QAbstractButton& button) {
    if (qobject_cast<const QCheckBox*>(&button) != nullptr) {
        return QAccessible::CheckBox;
    }
    return qobject_cast<const QRadioButton*>(&button) != nullptr ? QAccessible::RadioButton : QAccessible::Button;
}

// What a screen reader sees of a button without a menu, as Qt's own would tell it, and how it is worked.
class ButtonAccess : public QAccessibleWidget {
public:
    explicit ButtonAccess(QAbstractButton& buttonToShow)
        : QAccessibleWidget(&buttonToShow, RoleOf(buttonToShow)), button(buttonToShow) {}

    QString text(QAccessible::Text kind) const override {
        const QString given = QAccessibleWidget::text(kind);
        if (!given.isEmpty() || kind != QAccessible::Name) {
            return kind == QAccessible::Accelerator && given.isEmpty() ? Accelerator() : given;
        }
        QString name = button.text();
        return name.replace(QStringLiteral("&&"), QChar::fromLatin1('\1'))
            .remove(QLatin1Char('&'))
            .replace(QLatin1Char('\1'), QLatin1Char('&'));
    }

    QAccessible::State state() const override {
        QAccessible::State now = QAccessibleWidget::state();
        now.checkable = button.isCheckable();
        now.checked = button.isChecked();
        now.pressed = button.isDown();
        const auto* push = qobject_cast<const QPushButton*>(&button);
        now.defaultButton = push != nullptr && push->isDefault();
        return now;
    }

    QStringList actionNames() const override {
        QStringList names;
        if (button.isEnabled()) {
            names.append(button.isCheckable() ? toggleAction() : pressAction());
        }
        return names + QAccessibleWidget::actionNames();
    }

    QStringList keyBindingsForAction(const QString& actionName) const override {
        const bool works = actionName == pressAction() || actionName == toggleAction();
        return works && !Accelerator().isEmpty() ? QStringList{Accelerator()} : QStringList();
    }

    // From the event loop: the reader waits for the call to come back, and a message box would keep it.
    void doAction(const QString& actionName) override {
        if (actionName != pressAction() && actionName != toggleAction()) {
            QAccessibleWidget::doAction(actionName);
            return;
        }
        QMetaObject::invokeMethod(
            &button, [pressed = &button] { Press(*pressed); }, Qt::QueuedConnection);
    }

private:
    QAbstractButton& button;

    // Like a key or the mouse, it waits for the end of a save.
    static void Press(QAbstractButton& pressed) {
        constexpr int untilNextTry = 50; // milliseconds
        if (SaveThread::IsBusy()) {
            QTimer::singleShot(untilNextTry, &pressed, [&pressed] { Press(pressed); });
        } else if (pressed.isEnabled() && TextBox::LeaveIn(*pressed.window())) {
            pressed.click();
        }
    }

    QString Accelerator() const { return button.shortcut().toString(QKeySequence::NativeText); }
};

QAccessibleInterface* MakeButtonAccess(const QString& className, QObject* object) {
    static const QStringList kinds{QStringLiteral("QPushButton"), QStringLiteral("QToolButton"),
                                   QStringLiteral("QCheckBox"), QStringLiteral("QRadioButton")};
    auto* button = kinds.contains(className) ? qobject_cast<QAbstractButton*>(object) : nullptr;
    const auto* push = qobject_cast<QPushButton*>(object);
    const auto* tool = qobject_cast<QToolButton*>(object);
    const bool hasMenu = (push != nullptr && push->menu() != nullptr) || (tool != nullptr && tool->menu() != nullptr);
    return button != nullptr && !hasMenu ? new ButtonAccess(*button) : nullptr;
}

} // namespace

void InstallButtonAccess() {
    static bool installed = false;
    if (!installed) {
        installed = true;
        QAccessible::installFactory(MakeButtonAccess);
    }
}
