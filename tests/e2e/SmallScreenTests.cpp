#include "tests/e2e/InstalledProgram.h"
#include "tests/e2e/RunningProgram.h"

#include <gtest/gtest.h>

// These run on a display of 1024 x 576 pixels, which is too low for the menu.

namespace {

const QString ScreenMessage = QStringLiteral("ADJUST SCREEN RESOLUTION");

TEST(SmallScreen, EndsTheProgramOnOk) {
    const InstalledProgram installed(EnglishNames());
    RunningProgram program(installed.Folder(), installed.Edition.Executable);
    program.Click(ScreenMessage, QStringLiteral("OK"));
    EXPECT_EQ(program.AwaitEnd(), 0);
    EXPECT_FALSE(installed.Exists(QStringLiteral("GW_v12_PRG.CFG"))) << "nothing is saved";
}

TEST(SmallScreen, GoesOnWithTheMenuOnCancel) {
    const InstalledProgram installed(EnglishNames());
    RunningProgram program(installed.Folder(), installed.Edition.Executable);
    program.Click(ScreenMessage, QStringLiteral("Cancel"));
    program.AnswerMessage(installed.Edition.PrinterTitle);
    program.Press(installed.Edition.MenuTitle, installed.Edition.ExitKeys);
    EXPECT_EQ(program.AwaitEnd(), 0);
    EXPECT_TRUE(installed.Exists(QStringLiteral("GW_v12_PRG.CFG")));
}

} // namespace
