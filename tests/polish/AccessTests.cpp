#include "tests/polish/EveryWindow.h"
#include "tests/support/PrintText.h"

#include <QtWidgets>

namespace {

bool IsInnerPart(const QWidget& control) {
    const QWidget* parent = control.parentWidget();
    return control.objectName().startsWith(QStringLiteral("qt_")) ||
           qobject_cast<const QAbstractScrollArea*>(parent) != nullptr ||
           qobject_cast<const QComboBox*>(parent) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(parent) != nullptr;
}

QString Described(const QWidget& control) {
    return control.objectName().isEmpty() ? QString::fromUtf8(control.metaObject()->className()) : control.objectName();
}

TEST(Access, EveryControlHasAName) {
    int seen = 0;
    LookAtEveryWindow([&seen](QWidget& window, const std::string& name) {
        for (QWidget* control : window.findChildren<QWidget*>()) {
            const bool reached = (control->focusPolicy() & Qt::TabFocus) != 0;
            const bool button = qobject_cast<QAbstractButton*>(control) != nullptr;
            if (!control->isVisible() || !(reached || button) || IsInnerPart(*control)) {
                continue;
            }
            ++seen;
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
            ASSERT_NE(accessible, nullptr) << name << ": " << Described(*control).toStdString();
            EXPECT_FALSE(accessible->text(QAccessible::Name).trimmed().isEmpty())
                << name << ": " << Described(*control).toStdString();
        }
    });
    EXPECT_GT(seen, 300);
}

// Captions that share a key as they are given; the key moves between the two.
const QList<QStringList> SharedKeys = {
    {QStringLiteral("cmdClearScheme"), QStringLiteral("cmdPrefCancel")},
    {QStringLiteral("cmdPrefSave"), QStringLiteral("cmdSaveScheme")},
    {QStringLiteral("cmdClrAdminPath"), QStringLiteral("cmdRulesCancel")},
    {QStringLiteral("cmdClrPath"), QStringLiteral("cmdRulesCancel")},
    {QStringLiteral("cmdClrAdminPath"), QStringLiteral("cmdSaveRules")},
    {QStringLiteral("cmdClrPath"), QStringLiteral("cmdSaveRules")},
};

QKeySequence KeyOf(const QWidget& control) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
        return QKeySequence::mnemonic(button->text());
    }
    const auto* label = qobject_cast<const QLabel*>(&control);
    return label != nullptr && label->buddy() != nullptr ? QKeySequence::mnemonic(label->text()) : QKeySequence();
}

TEST(Access, KeysAreUniqueInAWindow) {
    LookAtEveryWindow([](QWidget& window, const std::string& name) {
        QMap<QString, QStringList> controlsOfKey;
        for (const QWidget* control : window.findChildren<QWidget*>()) {
            const QKeySequence key = KeyOf(*control);
            if (control->isVisible() && !key.isEmpty()) {
                controlsOfKey[key.toString()].append(Described(*control));
            }
        }
        for (auto key = controlsOfKey.begin(); key != controlsOfKey.end(); ++key) {
            key->sort();
            EXPECT_TRUE(key->size() == 1 || SharedKeys.contains(*key))
                << name << ": " << key.key().toStdString() << " works " << key->join(u' ').toStdString();
        }
    });
}

} // namespace
