#pragma once

#include "tests/e2e/InstalledProgram.h"
#include "tests/e2e/RunningProgram.h"

#include <gtest/gtest.h>
#include <memory>

/// A program folder with the folders of a gradebook on the drive g:, and what the tests of General Options do over and
/// over in the real program. Where drives are the system's own, the folder itself stands for g: in all that a test
/// gives or expects.
class OptionsWindow : public testing::TestWithParam<std::string> {
protected:
    OptionsWindow();

    InstalledProgram Installed;
    const QString Title = Installed.Edition.OptionsTitle;
    const QString Network = Installed.Folder() + QStringLiteral("/network"); ///< the folder behind g:
    std::unique_ptr<RunningProgram> Program;

    /// The hand-written file of the edition in that state ("options-start").
    QByteArray State(const char* state) const;
    /// A configuration file with what stands for g: here.
    QByteArray Here(QByteArray configFile) const;
    /// Starts the program on a configuration file and opens General Options by its access key; `active` is the window
    /// that then has the keyboard (none: General Options).
    void Open(const QByteArray& configFile, const QString& active = {});

    void Click(const char* control);
    void Press(const char* chord);
    /// Presses Tab until the control has the keyboard.
    void TabTo(const char* control);
    /// The same, in this window or in the one of that title, and then a key.
    void Work(const char* control, const char* chord);
    void Work(const QString& window, const char* control, const char* chord);
    void AwaitText(const char* control, const char* text);
    void AwaitChecked(const char* option);
    /// Shows a panel, by a click on its button or by Tab and the space bar.
    void ClickPanel(int panel);
    void WorkPanel(int panel);
    /// Presses OK in the information box of that title and gives a name to the file dialog that follows.
    void AnswerNotice(const char* title);
    void AnswerFileDialog(const char* title, const QString& nativeName);
    /// Chooses a font in the desktop's dialog.
    void ChooseFont(const QString& name);
    /// The window is gone, the menu is back, and both files hold the bytes.
    void ExpectSaved(const QByteArray& bytes);

private:
    QString Placed(const char* shown) const;
};
