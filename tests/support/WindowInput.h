#pragma once

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

/// Finds a control of a window by its object name; a miss fails the test and prints the names there are.
template <typename Control>
Control* Find(const QWidget& window, const char* name) {
    auto* control = window.findChild<Control*>(QString::fromUtf8(name));
    if (control == nullptr) {
        std::string names;
        for (const QObject* child : window.findChildren<QObject*>()) {
            names += child->objectName().isEmpty() ? std::string() : ' ' + child->objectName().toStdString();
        }
        ADD_FAILURE() << "no control " << name << " among:" << names;
    }
    return control;
}

/// Shows the window and waits until it is the active one.
inline void ShowActive(QWidget& window) {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

/// Presses Alt and the key as a user would, and lets the button's animation end.
inline void AccessKey(QWidget& window, Qt::Key key) {
    QWidget* target = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    QTest::keyClick(target, key, Qt::AltModifier);
}
