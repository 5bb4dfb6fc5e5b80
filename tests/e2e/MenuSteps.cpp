#include "tests/e2e/MenuSteps.h"

#include <gtest/gtest.h>

EditionNames NamesOf(const std::string& edition) {
    return edition == "french" ? FrenchNames() : EnglishNames();
}

QByteArray EditionGolden(const InstalledProgram& installed, const char* state) {
    return Golden(QStringLiteral("%1-%2.cfg").arg(installed.Edition.Component, QString::fromLatin1(state)));
}

std::unique_ptr<RunningProgram> StartToMenu(const InstalledProgram& installed, const QStringList& environment) {
    auto program = std::make_unique<RunningProgram>(installed.Folder(), installed.Edition.Executable, environment);
    program->AnswerMessage(installed.Edition.PrinterTitle);
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
