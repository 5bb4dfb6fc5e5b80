#include "tests/e2e/MenuSteps.h"
#include "tests/e2e/Screen.h"

#include <gtest/gtest.h>

// The real programs on a share whose server stops answering in the middle of a save.

namespace {

const QString Notice = QStringLiteral("SavingNotice");
const QString LockLabel = QStringLiteral("lblLocked");
const QString Locked = QStringLiteral("Locked");
const QString Unlocked = QStringLiteral("Unlocked");

class SlowShare : public testing::TestWithParam<std::string> {
protected:
    InstalledProgram Installed{NamesOf(GetParam())};
    const QString Menu = Installed.Edition.MenuTitle;
    const QString Options = Installed.Edition.OptionsTitle;
    const QByteArray Start = WithFolders(Golden(QStringLiteral("start.cfg")));
    std::unique_ptr<RunningProgram> Program;

    void StartUnlocked() {
        Installed.Remove(Older);
        Installed.Write(Newer, Start);
        Program = StartToMenu(Installed, {QStringLiteral("LD_PRELOAD=" E2E_STALLED_SYNC),
                                          QStringLiteral("STALLED_WHILE=") + Installed.Native(Stall)});
        Program->AwaitText(Menu, LockLabel, Unlocked);
    }
    void StallTheShare() { Installed.Write(Stall, "stalled"); }
    void ShareAnswers() { Installed.Remove(Stall); }

    void AwaitNotice(const QString& window) {
        const bool french = GetParam() == "french";
        Program->Await(QStringLiteral("the notice of the save"), [&](const SeenScreen& screen) {
            const SeenWindow* seen = screen.Window(window);
            return seen != nullptr && seen->Has(Notice) && seen->Control(Notice).Visible;
        });
        Program->AwaitText(window, Notice,
                           french ? QStringLiteral("Enregistrement en cours...") : QStringLiteral("Saving..."));
    }
    /// The file as it was at the start, but for the folders, with the lock as it is now.
    QByteArray State(const char* lock) const { return WithFolders(EditionGolden(Installed, lock)); }

private:
    const QString Stall = QStringLiteral("stalled");
};

INSTANTIATE_TEST_SUITE_P(Editions, SlowShare, testing::Values("english", "french"),
                         [](const auto& tested) { return tested.param; });

// Each further press of the lock waits for the save at hand and then counts once.
TEST_P(SlowShare, PressesOfTheLockWaitForItsSave) {
    const struct {
        int presses;
        const char* state;
        QString label;
    } cases[] = {{1, "unlocked", Unlocked}, {2, "locked", Locked}};
    for (const auto& row : cases) {
        StartUnlocked();
        const QPoint lock = Program->AwaitWindow(Menu).Control(QStringLiteral("imgUnlocked")).Place.center();
        StallTheShare();
        ClickAt(lock);
        Program->AwaitText(Menu, LockLabel, Locked);
        AwaitNotice(Menu);
        EXPECT_EQ(Installed.Read(Newer).toStdString(), Start.toStdString()) << "the save hangs";
        for (int press = 0; press < row.presses; ++press) {
            ClickAt(lock);
        }
        AwaitNotice(Menu);
        EXPECT_EQ(Program->AwaitWindow(Menu).Control(LockLabel).Text, Locked);
        ShareAnswers();
        Program->AwaitText(Menu, LockLabel, row.label);
        ExitByKeys(*Program, Installed);
        AwaitBothFiles(*Program, Installed, State(row.state));
    }
}

// Nothing comes after the keys that would wake the program.
TEST_P(SlowShare, KeysPressedDuringASaveActAfterIt) {
    StartUnlocked();
    StallTheShare();
    Program->Click(Menu, QStringLiteral("imgUnlocked"));
    AwaitNotice(Menu);
    Program->Press(Menu, Installed.Edition.ExitKeys);
    AwaitNotice(Menu);
    ShareAnswers();
    EXPECT_EQ(Program->AwaitEnd(), 0);
    AwaitBothFiles(*Program, Installed, State("locked"));
}

TEST_P(SlowShare, GeneralOptionsSaysThatItSavesAndSavesOnce) {
    StartUnlocked();
    Program->Press(Menu, QStringLiteral("alt+g"));
    Program->AwaitWindow(Options);
    StallTheShare();
    Program->Press(Options, Installed.Edition.SaveKeys);
    AwaitNotice(Options);
    Program->Press(Options, Installed.Edition.SaveKeys);
    Program->Press(Options, QStringLiteral("Escape"));
    ShareAnswers();
    Program->AwaitNoWindow(Options);
    Program->AwaitWindow(Menu);
    // General Options writes the one choice of the form into both of its places.
    AwaitBothFiles(*Program, Installed,
                   State("unlocked")
                       .replace("[Bar Code Attendance]\r\n 1 \r\n 0 \r\n", "[Bar Code Attendance]\r\n 1 \r\n 1 \r\n"));
    ExitByKeys(*Program, Installed);
}

} // namespace
