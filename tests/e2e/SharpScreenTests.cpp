#include "tests/e2e/InstalledProgram.h"
#include "tests/e2e/RunningProgram.h"

#include <gtest/gtest.h>

// These run on a display of 2000 x 1500 pixels with everything drawn at twice its size.

TEST(SharpScreen, TogglesTheLockByMouseAtDoubleSize) {
    InstalledProgram installed(EnglishNames());
    installed.Write(QStringLiteral("GW_v12_PRG.CFG"), Golden(QStringLiteral("start.cfg")));
    RunningProgram program(installed.Folder(), installed.Edition.Executable, {QStringLiteral("QT_SCALE_FACTOR=2")});
    const QString menu = installed.Edition.MenuTitle;
    program.AnswerMessage(installed.Edition.PrinterTitle);
    EXPECT_GE(program.AwaitWindow(menu).Place.width(), 1600) << "800 logical pixels, doubled";
    program.Click(menu, QStringLiteral("imgUnlocked"));
    program.AwaitText(menu, QStringLiteral("lblLocked"), QStringLiteral("Locked"));
    program.Press(menu, installed.Edition.ExitKeys);
    EXPECT_EQ(program.AwaitEnd(), 0);
    EXPECT_EQ(installed.Read(QStringLiteral("GW_v11_PRG.CFG")).toStdString(),
              Golden(QStringLiteral("english-locked.cfg")).toStdString());
}
