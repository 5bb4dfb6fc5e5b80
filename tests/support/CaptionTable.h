#pragma once

#include "tests/support/TestFolder.h"
#include "tests/support/WindowInput.h"

/// What a control shows of its caption, as a user would name it: text of labels and buttons, title of frames.
inline QString CaptionOf(const QWidget& control) {
    if (const auto* label = qobject_cast<const QLabel*>(&control)) {
        return label->text();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
        return button->text();
    }
    const auto* frame = qobject_cast<const QGroupBox*>(&control);
    return frame != nullptr ? frame->title() : QString();
}

/// Compares the captions of a window with a hand-written table below tests/data: control, English, French, separated by
/// tabs. `column` is 1 for English, 2 for French. Returns how many captions the table has.
inline int ExpectCaptions(const QWidget& window, const char* table, int column) {
    int count = 0;
    for (const QByteArray& line : HandWritten(table).split('\n')) {
        const QList<QByteArray> fields = line.split('\t');
        if (fields.size() != 3) {
            continue;
        }
        ++count;
        if (const auto* control = Find<QWidget>(window, fields[0].constData())) {
            EXPECT_EQ(CaptionOf(*control).toUtf8().toStdString(), fields[column].toStdString())
                << fields[0].toStdString();
        }
    }
    return count;
}

/// Nothing of a window is cut off: every control lies inside its parent and has the room that its text needs.
inline void ExpectNothingClipped(const QWidget& window) {
    constexpr int nestedLayouts = 8; // a changed text passes through one of them in each round
    for (int round = 0; round < nestedLayouts; ++round) {
        QCoreApplication::processEvents();
    }
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const bool captioned = qobject_cast<const QLabel*>(control) != nullptr ||
                               qobject_cast<const QAbstractButton*>(control) != nullptr ||
                               qobject_cast<const QLineEdit*>(control) != nullptr ||
                               qobject_cast<const QComboBox*>(control) != nullptr;
        if (!captioned || control->objectName().isEmpty() || !control->isVisible()) {
            continue;
        }
        const std::string name = control->objectName().toStdString();
        EXPECT_TRUE(control->parentWidget()->rect().contains(control->geometry())) << name;
        EXPECT_GE(control->width(), control->minimumSizeHint().width()) << name;
        const int needed = control->hasHeightForWidth() ? control->heightForWidth(control->width())
                                                        : control->minimumSizeHint().height();
        EXPECT_GE(control->height(), needed) << name;
    }
}

/// The object names that Tab reaches from `first`, in order, once around.
inline QStringList TabOrder(QWidget& window, const char* first) {
    QStringList names;
    auto* start = Find<QWidget>(window, first);
    start->setFocus();
    do {
        names.append(window.focusWidget()->objectName());
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    } while (window.focusWidget() != start && names.size() < 100);
    return names;
}

/// Every control that the keyboard reaches tells a screen reader what it is.
inline void ExpectAccessibleNames(const QWidget& window) {
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if ((control->focusPolicy() & Qt::TabFocus) == 0 || control->objectName().isEmpty() ||
            control->objectName().startsWith(QStringLiteral("qt_"))) {
            continue;
        }
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
        EXPECT_FALSE(accessible == nullptr || accessible->text(QAccessible::Name).isEmpty())
            << control->objectName().toStdString();
    }
}
