#include "tests/e2e/InstalledProgram.h"
#include "tests/e2e/RunningProgram.h"

#include <gtest/gtest.h>

// These run on a display of exactly 800 x 600 pixels, the smallest that the program asks for.

TEST(SmallestScreen, IsTakenWithoutAMessage) {
    const InstalledProgram installed(EnglishNames());
    RunningProgram program(installed.Folder(), installed.Edition.Executable);
    program.Press(installed.Edition.PrinterTitle, QStringLiteral("Return"));
    program.AwaitWindow(installed.Edition.MenuTitle);
    program.Press(installed.Edition.MenuTitle, installed.Edition.ExitKeys);
    EXPECT_EQ(program.AwaitEnd(), 0);
}
