#pragma once

#include <QLineEdit>
#include <functional>

/// A text box of an options window. It selects its whole text when it gets the focus (by a click too), turns Enter into
/// Tab, shows '?' for a character that the code page lacks as soon as it is typed or pasted, and has a lost-focus rule.
///
/// The rule runs once when the user leaves the box, before anything else that the user started can act: before another
/// control gets a mouse press, before a button is worked by its access key, before Tab moves on. When it refuses, the
/// action does not happen and the focus stays. It does not run when the focus goes to a message box, a menu, another
/// program, or when the window closes. A focus that code moves while the window is not the active one is noticed as
/// soon as the window becomes active again.
class TextBox : public QLineEdit {
    Q_OBJECT

public:
    /// Checks the text and takes it over; returns false to keep the focus. It may change the text.
    using LostFocusRule = std::function<bool()>;

    explicit TextBox(QWidget* parent = nullptr);

    /// Sets the rule; without one the box may always be left.
    void SetLostFocusRule(LostFocusRule rule);

    /// Runs the rule as leaving would, once for each stay in the box; true when the box may be left.
    bool Leave();

    /// The box of the window that the user is in, by its rule: entered, and not yet left; null when there is none.
    static TextBox* EnteredIn(const QWidget& window);

    /// Runs the rule of that box before something of its window acts; false when it refuses, and nothing may happen.
    static bool LeaveIn(const QWidget& window);

Q_SIGNALS:
    /// The box got the focus from another control (not from a message box or another program).
    void GotFocus();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    LostFocusRule lostFocusRule;
    bool entered = false; // the rule has not run since the box got the focus
    bool runningRule = false;
    bool away = false;            // the focus went to a menu, a message box or another program
    bool selectOnRelease = false; // a click that brought the focus selects the text

    void KeepToCodePage();
};
