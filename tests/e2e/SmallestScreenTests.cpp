#include "tests/e2e/InstalledProgram.h"
#include "tests/e2e/RunningProgram.h"

#include <gtest/gtest.h>

// These run on a display of exactly 800 x 600 pixels, the smallest that the program asks for.

namespace {

// The window with its frame, and the last row of its controls whole.
void ExpectWholeOnScreen(RunningProgram& program, const QString& title, const char* inLastRow) {
    const QRect screen(0, 0, 800, 600);
    const SeenWindow window = program.AwaitWindow(title);
    EXPECT_TRUE(screen.contains(window.Place))
        << title.toStdString() << " ends at " << window.Place.right() << ", " << window.Place.bottom();
    const SeenControl control = window.Control(QString::fromUtf8(inLastRow));
    EXPECT_TRUE(screen.contains(control.Place)) << inLastRow;
    constexpr int leastHeight = 20;
    EXPECT_GE(control.Place.height(), leastHeight) << inLastRow << " is cut off";
}

} // namespace

TEST(SmallestScreen, IsTakenWithoutAMessage) {
    const InstalledProgram installed(EnglishNames());
    RunningProgram program(installed.Folder(), installed.Edition.Executable);
    program.AnswerMessage(installed.Edition.PrinterTitle);
    ExpectWholeOnScreen(program, installed.Edition.MenuTitle, "cmdExit");
    program.Press(installed.Edition.MenuTitle, QStringLiteral("alt+g"));
    ExpectWholeOnScreen(program, installed.Edition.OptionsTitle, "cmdPrefSave");
    program.Press(installed.Edition.OptionsTitle, QStringLiteral("Escape"));
    program.AwaitWindow(installed.Edition.MenuTitle);
    program.Press(installed.Edition.MenuTitle, installed.Edition.ExitKeys);
    EXPECT_EQ(program.AwaitEnd(), 0);
}
