#pragma once

#include "tests/e2e/Seen.h"

#include <QProcess>
#include <QTemporaryDir>
#include <functional>

/// The real program, started from a program folder on the display of this process and watched through the probe. It
/// runs with a home of its own and without printers, so that nothing of this machine's user reaches it. Every routine
/// waits until what it needs is there and throws std::runtime_error, saying what is there instead, after half a minute.
class RunningProgram {
public:
    /// Starts the executable in the folder; `environment` adds or replaces variables ("NAME=value").
    RunningProgram(const QString& folder, const QString& executable, const QStringList& environment = {});
    /// Kills the program if it still runs.
    ~RunningProgram();

    /// What is on the screen now.
    SeenScreen Look() { return LookWhile({}); }
    /// Waits until the condition holds; `what` names it in the message of a failure.
    SeenScreen Await(const QString& what, const std::function<bool(const SeenScreen&)>& condition) {
        return AwaitWhile({}, what, condition);
    }
    /// Waits until the window of that title has the keyboard.
    SeenWindow AwaitWindow(const QString& title);
    void AwaitNoWindow(const QString& title);
    /// Waits until the control satisfies the condition.
    SeenControl AwaitControl(const QString& title, const QString& control, const QString& what,
                             const std::function<bool(const SeenControl&)>& condition);
    SeenControl AwaitText(const QString& title, const QString& control, const QString& text);

    /// Clicks the middle of a control with the mouse, once its window is active and it can be seen and used.
    void Click(const QString& title, const QString& control);
    void DoubleClick(const QString& title, const QString& control);
    /// Drags the middle of a control to the middle of another, as a hand does: the button goes up when the drag has
    /// begun and is over the other one.
    void Drag(const QString& title, const QString& control, const QString& target);
    /// The same with a control that starts no drag.
    void DragInVain(const QString& title, const QString& control, const QString& target);
    /// Presses a key or chord in the window, once it is active.
    void Press(const QString& title, const QString& chord);
    /// Answers the message of that title with its OK button, by Return, once the button has the keyboard.
    void AnswerMessage(const QString& title);
    /// Presses Tab until the control has the keyboard.
    void TabTo(const QString& title, const QString& control);
    /// Clicks a text box, replaces its text and waits until it shows the new one.
    void Enter(const QString& title, const QString& textBox, const QString& text);
    /// Whether the file dialog of that title has the keyboard, the toolkit's or the system's own (which the toolkit
    /// does not take for an active window).
    bool FileDialogIsOpen(const QString& title);
    /// Answers the file dialog of that title, the toolkit's or the system's own, with a file by its native path.
    void ChooseFile(const QString& title, const QString& path);
    /// Leaves the file dialog of that title by Escape.
    void CancelFileDialog(const QString& title);
    /// Saves a picture of the window with its frame.
    void TakePicture(const QString& title, const QString& file);

    /// Waits until the program has ended and returns its exit status.
    int AwaitEnd();

private:
    /// Where the mouse reaches the control, once that can be used.
    QPoint MiddleOf(const QString& title, const QString& control);
    void MoveMouse(const QPoint& from, const QPoint& to);
    SeenScreen LookWhile(const std::function<void()>& waiting);
    SeenScreen AwaitWhile(const std::function<void()>& waiting, const QString& what,
                          const std::function<bool(const SeenScreen&)>& condition);

    QTemporaryDir home;
    QProcess process;
};

/// A file's name in quotes, as file dialogs take it, too: to such a one they propose nothing, in a list that would take
/// the next key.
inline QString Quoted(const QString& name) {
    return QLatin1Char('"') + name + QLatin1Char('"');
}
