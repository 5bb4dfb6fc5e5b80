#include "tests/e2e/MenuSteps.h"

#include "tests/e2e/Screen.h"

#include <gtest/gtest.h>

EditionNames NamesOf(const std::string& edition) {
    return edition == "french" ? FrenchNames() : EnglishNames();
}

QByteArray EditionGolden(const InstalledProgram& installed, const char* state) {
    return Golden(QStringLiteral("%1-%2.cfg").arg(installed.Edition.Component, QString::fromLatin1(state)));
}

// On a busy machine the box is the program's active window before its button takes the keys, and the display's before
// or after that; a key pressed in between is lost.
void AnswerPrinterMessage(RunningProgram& program, const InstalledProgram& installed) {
    const QString& message = installed.Edition.PrinterTitle;
    program.AwaitControl(message, QStringLiteral("OK"), QStringLiteral("to take the keyboard"),
                         [](const auto& button) { return button.Focused; });
    program.Await(QStringLiteral("the keys to reach \"%1\"").arg(message),
                  [&message](const SeenScreen&) { return ActiveTitle() == message; });
    program.Press(message, QStringLiteral("Return"));
    program.AwaitNoWindow(message);
}

std::unique_ptr<RunningProgram> StartToMenu(const InstalledProgram& installed, const QStringList& environment) {
    auto program = std::make_unique<RunningProgram>(installed.Folder(), installed.Edition.Executable, environment);
    AnswerPrinterMessage(*program, installed);
    program->AwaitWindow(installed.Edition.MenuTitle);
    return program;
}

void AwaitBothFiles(RunningProgram& program, const InstalledProgram& installed, const QByteArray& expected) {
    try {
        program.Await(QStringLiteral("both files to be saved"), [&](const SeenScreen&) {
            return installed.Read(Older) == expected && installed.Read(Newer) == expected;
        });
    } catch (const std::exception& failure) {
        ADD_FAILURE() << failure.what();
    }
    EXPECT_EQ(installed.Read(Older).toStdString(), expected.toStdString());
    EXPECT_EQ(installed.Read(Newer).toStdString(), expected.toStdString());
}

void ExitByKeys(RunningProgram& program, const InstalledProgram& installed) {
    program.Press(installed.Edition.MenuTitle, installed.Edition.ExitKeys);
    EXPECT_EQ(program.AwaitEnd(), 0);
}

QByteArray WithFolders(QByteArray bytes) {
    return bytes
        .replace("c:\\donn\xE9"
                 "es\\marks, 2016",
                 "c:\\tmp")
        .replace("c:\\backup", "c:\\var");
}
