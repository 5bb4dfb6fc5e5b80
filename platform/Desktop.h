#pragma once

#include "platform/SystemError.h"

#include <QDateTime>
#include <QSize>
#include <QString>
#include <cstdint>
#include <functional>

class SystemCalls;
class Volumes;

enum class MessageButtons { Ok, OkCancel, YesNo, RetryCancel };
enum class MessageIcon { None, Information, Question, Exclamation, Critical };

/// The button that closed a message box; Escape and the close button give Cancel, or No, or Ok, whichever there is.
enum class MessageAnswer { Ok = 1, Cancel = 2, Retry = 4, Yes = 6, No = 7 };

struct Message {
    QString Title;
    QString Text; ///< plain text, lines broken by single line feeds
    MessageButtons Buttons = MessageButtons::Ok;
    MessageIcon Icon = MessageIcon::None;
};

struct FileDialog {
    enum class Kind { Open, Save };

    Kind DialogKind = Kind::Open;
    QString Title;
    QString Filter;           ///< "Schemes (*.scm)|*.scm", pairs of label and pattern separated by bars
    QString FileName;         ///< proposed, in the program's form; may be a bare name or empty
    QString DefaultExtension; ///< ".scm"; given to a chosen name that has none
    bool OverwritePrompt = false;
    bool PathMustExist = false;
    bool FileMustExist = false;
};

/// The chosen file in the program's form, or error 32755 when the user cancelled.
struct FileDialogAnswer {
    QString FileName;
    SystemError Error;
};

/// The chosen font's name, or error 32755 when the user cancelled.
struct FontDialogAnswer {
    QString FontName;
    SystemError Error;
};

enum class HelperProgram {
    FileViewer, ///< "explorer.exe " on Windows, the desktop's opener elsewhere
    TextEditor, ///< "notepad.exe " on Windows, the desktop's opener or $EDITOR in a terminal elsewhere
};

/// The button answered in the last message box (MessageAnswer's numbers); ParseDayMonth keeps a weekday number here.
extern std::int16_t MsgAnswer;

/// Everything that windows and routines ask of the desktop and the operating system. The program installs the Qt one,
/// a test a scripted one that records what was asked and gives the next answer.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// Shows a message box over the active window, waits for its answer and keeps that in MsgAnswer.
    MessageAnswer ShowMessage(const Message& message);

    virtual FileDialogAnswer AskForFile(const FileDialog& dialog) = 0;
    /// A font dialog of screen and printer fonts, with `fontName` (when not empty) at `pointSize` preselected.
    virtual FontDialogAnswer AskForFont(const QString& fontName, int pointSize) = 0;

    /// Starts another program with `path` (program's form) as its one argument, without a shell, and returns at once.
    /// Reports 53 when the file is missing (FileViewer only) or nothing can be started. A program that was started and
    /// ends with failure within seconds, because it has nothing to show the file with, calls `whenFailed` from the
    /// event loop; where the system does not tell of that (Windows), it is never called.
    virtual SystemError StartProgram(HelperProgram program, const QString& path, std::function<void()> whenFailed) = 0;

    /// The screen's size in logical pixels.
    virtual QSize ScreenSize() = 0;
    /// The largest inside of a window that can be seen whole: the screen less its bars and a window's frame.
    virtual QSize RoomForWindow() { return ScreenSize(); }
    /// Sets the default printer's font; false when there is no printer or it cannot use the font.
    virtual bool SetPrinterFont(const QString& fontName) = 0;
    /// Lets everything that is pending happen, what the user has pressed included.
    virtual void ProcessPendingEvents() = 0;
    /// Lets the windows paint. What the user has pressed meanwhile waits until the action at hand is done.
    virtual void PaintPendingWindows() = 0;
    /// Runs a save and returns at its end. A thread of its own may run it, so that the windows can show a save that
    /// takes long; so it shows nothing itself. What the user presses meanwhile waits, as at PaintPendingWindows.
    virtual void RunSave(const std::function<void()>& save);
    virtual QDateTime Now() = 0;

    virtual Volumes& TheVolumes() = 0;
    virtual SystemCalls& TheSystemCalls() = 0;

protected:
    /// Shows the message box of ShowMessage.
    virtual MessageAnswer AskUser(const Message& message) = 0;
};

/// The installed desktop. One must be installed before any window or file routine is used.
Desktop& TheDesktop();

/// Installs a desktop and returns the one before (null at first); the caller keeps ownership.
Desktop* InstallDesktop(Desktop* desktop);

/// Runs a save that gives an error, or none, by RunSave.
SystemError RunSave(const std::function<SystemError()>& save);

/// A message box with an OK button only.
void ShowNotice(MessageIcon icon, const QString& title, const QString& text);
