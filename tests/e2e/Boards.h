#pragma once

#include "tests/e2e/InstalledProgram.h"
#include "tests/e2e/RunningProgram.h"
#include "tests/e2e/Screen.h"

#include <gtest/gtest.h>
#include <memory>

/// A program folder of each edition, and what the tests of the Admin and Transfer windows do over and over.
class EachBoard : public testing::TestWithParam<std::string> {
protected:
    InstalledProgram Installed{GetParam() == "french" ? FrenchNames() : EnglishNames()};
    const QString Menu = Installed.Edition.MenuTitle;
    std::unique_ptr<RunningProgram> Program;

    /// Starts the program, gets past the message about the missing printer and opens a window by its access key.
    void OpenFromMenu(const char* keys, const QString& title, const QStringList& environment = {}) {
        Program = std::make_unique<RunningProgram>(Installed.Folder(), Installed.Edition.Executable, environment);
        Program->AnswerMessage(Installed.Edition.PrinterTitle);
        Program->Press(Menu, QString::fromLatin1(keys));
        Program->AwaitWindow(title);
    }

    /// Presses Tab until the control has the keyboard.
    void TabTo(const QString& title, const char* control) { Program->TabTo(title, QString::fromLatin1(control)); }

    void Type(const QString& title, const char* key, int times = 1) {
        for (int i = 0; i < times; ++i) {
            Program->Press(title, QString::fromLatin1(key));
        }
    }

    /// Gives the program a drive g: (the folder "shared" below its own) and a drive h: that is not ready.
    void MakeDrives() {
        const QByteArray folder = Installed.Folder().toUtf8();
        Installed.MakeFolder(QStringLiteral("shared"));
        Installed.Write(QStringLiteral("drives.conf"), "G=" + folder + "/shared\nH=" + folder + "/none\n");
    }

    /// Double clicks the first entry of a folder list, the root of its drive.
    void OpenRoot(const QString& title, const char* list) {
        const SeenWindow seen = Program->AwaitWindow(title);
        DoubleClickAt(seen.Control(QString::fromLatin1(list)).Place.topLeft() + QPoint(30, 10));
    }

    void AwaitChecked(const QString& title, const char* control) {
        Program->AwaitControl(title, QString::fromLatin1(control), QStringLiteral("to be chosen"),
                              [](const auto& seen) { return seen.Checked; });
    }

    void AwaitText(const QString& title, const char* control, const char* text) {
        Program->AwaitText(title, QString::fromLatin1(control), QString::fromUtf8(text));
    }
};

inline std::string EditionOf(const testing::TestParamInfo<std::string>& tested) {
    return tested.param;
}
