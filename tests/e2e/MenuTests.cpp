#include "tests/e2e/MenuSteps.h"

#include <gtest/gtest.h>

namespace {

const QString PathFileName = QStringLiteral("GdWlPath.cfg");
const QString LockLabel = QStringLiteral("lblLocked");
const QString ClosedLock = QStringLiteral("imgLocked");
const QString OpenLock = QStringLiteral("imgUnlocked");

class EachEdition : public testing::TestWithParam<std::string> {
protected:
    InstalledProgram Installed{NamesOf(GetParam())};
    const QString Menu = Installed.Edition.MenuTitle;
};

INSTANTIATE_TEST_SUITE_P(Editions, EachEdition, testing::Values("english", "french"),
                         [](const auto& tested) { return tested.param; });

TEST_P(EachEdition, IsInstalledAsProgramAndManualOnly) {
    EXPECT_EQ(Installed.Files(),
              QStringList({QStringLiteral("Manuals/Gradewell Config.PDF"), Installed.Edition.Executable}));
    EXPECT_TRUE(Installed.Read(QStringLiteral("Manuals/Gradewell Config.PDF")).startsWith("%PDF-"));
}

TEST_P(EachEdition, TogglesTheLockByMouseAndSavesBothFilesToTheByte) {
    Installed.Write(Newer, Golden(QStringLiteral("start.cfg")));
    const auto program = StartToMenu(Installed);
    program->AwaitText(Menu, LockLabel, QStringLiteral("Unlocked"));

    program->Click(Menu, OpenLock);
    program->AwaitText(Menu, LockLabel, QStringLiteral("Locked"));
    AwaitBothFiles(*program, Installed, EditionGolden(Installed, "locked"));

    program->Click(Menu, ClosedLock);
    program->AwaitText(Menu, LockLabel, QStringLiteral("Unlocked"));
    AwaitBothFiles(*program, Installed, EditionGolden(Installed, "unlocked"));

    program->Click(Menu, LockLabel);
    program->AwaitText(Menu, LockLabel, QStringLiteral("Locked"));
    AwaitBothFiles(*program, Installed, EditionGolden(Installed, "locked"));

    ExitByKeys(*program, Installed);
    AwaitBothFiles(*program, Installed, EditionGolden(Installed, "locked"));
}

TEST_P(EachEdition, StartsLockedWithoutAFileAndSavesTheDefaultsAtExit) {
    Installed.Write(PathFileName, "left over");
    const auto program = StartToMenu(Installed);
    program->AwaitText(Menu, LockLabel, QStringLiteral("Locked"));
    const SeenWindow seen = program->AwaitWindow(Menu);
    EXPECT_TRUE(seen.Control(ClosedLock).Visible);
    EXPECT_FALSE(seen.Control(OpenLock).Visible);
    EXPECT_FALSE(Installed.Exists(Newer)) << "nothing was changed yet";

    ExitByKeys(*program, Installed);
    EXPECT_EQ(Installed.Read(Older).toStdString(), EditionGolden(Installed, "defaults").toStdString());
    EXPECT_EQ(Installed.Read(Newer).toStdString(), EditionGolden(Installed, "defaults").toStdString());
    EXPECT_FALSE(Installed.Exists(PathFileName));
}

TEST_P(EachEdition, OffersTheTransferAreaOnlyWhereItsProgramLies) {
    const QString frame = QStringLiteral("fraTransfer");
    {
        const auto program = StartToMenu(Installed);
        EXPECT_FALSE(program->AwaitWindow(Menu).Control(frame).Visible);
        ExitByKeys(*program, Installed);
    }
    Installed.Write(Installed.Edition.TransferProgram, "MZ");
    const auto program = StartToMenu(Installed);
    EXPECT_TRUE(program->AwaitWindow(Menu).Control(frame).Visible);
    ExitByKeys(*program, Installed);
}

TEST_P(EachEdition, SavesWhenTheWindowIsClosed) {
    Installed.Write(Newer, Golden(QStringLiteral("start.cfg")));
    Installed.Write(PathFileName, "left over");
    const auto program = StartToMenu(Installed);
    program->Press(Menu, QStringLiteral("alt+F4"));
    EXPECT_EQ(program->AwaitEnd(), 0);
    EXPECT_EQ(Installed.Read(Older).toStdString(), EditionGolden(Installed, "unlocked").toStdString());
    EXPECT_EQ(Installed.Read(Newer).toStdString(), EditionGolden(Installed, "unlocked").toStdString());
    EXPECT_FALSE(Installed.Exists(PathFileName));
}

class EnglishMenu : public testing::Test {
protected:
    InstalledProgram Installed{EnglishNames()};
    const QString Menu = Installed.Edition.MenuTitle;
};

TEST_F(EnglishMenu, ReadsTheOlderFileWhenBothAreThere) {
    Installed.Write(Older, Golden(QStringLiteral("start.cfg")));
    Installed.Write(Newer, EditionGolden(Installed, "defaults"));
    const auto program = StartToMenu(Installed);
    program->AwaitText(Menu, LockLabel, QStringLiteral("Unlocked"));
    ExitByKeys(*program, Installed);
    EXPECT_EQ(Installed.Read(Newer).toStdString(), EditionGolden(Installed, "unlocked").toStdString());
}

TEST_F(EnglishMenu, WorksTheLockByTabAndSpace) {
    Installed.Write(Newer, Golden(QStringLiteral("start.cfg")));
    const auto program = StartToMenu(Installed);
    constexpr int MoreThanThereAreControls = 20;
    for (int tabs = 0; tabs < MoreThanThereAreControls; ++tabs) {
        if (program->AwaitWindow(Menu).Control(OpenLock).Focused) {
            break;
        }
        program->Press(Menu, QStringLiteral("Tab"));
    }
    program->AwaitControl(Menu, OpenLock, QStringLiteral("to take the keyboard"),
                          [](const auto& lock) { return lock.Focused; });
    program->Press(Menu, QStringLiteral("space"));
    program->AwaitText(Menu, LockLabel, QStringLiteral("Locked"));
    AwaitBothFiles(*program, Installed, EditionGolden(Installed, "locked"));
}

TEST_F(EnglishMenu, KeepsACopyOfADamagedFile) {
    const QByteArray damaged = Golden(QStringLiteral("start.cfg")).left(400);
    Installed.Write(Newer, damaged);
    const auto program = StartToMenu(Installed);
    program->AwaitText(Menu, LockLabel, QStringLiteral("Locked"));
    ExitByKeys(*program, Installed);

    const QStringList copies = Installed.Files().filter(QStringLiteral(".damaged-"));
    ASSERT_EQ(copies.size(), 1) << Installed.Files().join(QLatin1Char(' ')).toStdString();
    EXPECT_EQ(Installed.Read(copies[0]).toStdString(), damaged.toStdString());
    EXPECT_NE(Installed.Read(Newer), damaged);
    EXPECT_EQ(Installed.Read(Newer), Installed.Read(Older));
}

TEST_F(EnglishMenu, SaysWhichFileCannotBeSavedAndSavesTheOther) {
    Installed.MakeFolder(Older);
    const auto program = StartToMenu(Installed);
    program->Click(Menu, ClosedLock);
    const QString message = QStringLiteral("GW_v11_PRG.CFG SAVE ERROR: 75");
    const SeenWindow box = program->AwaitWindow(message);
    EXPECT_EQ(box.Control(QStringLiteral("qt_msgbox_label")).Text,
              QStringLiteral("Unexpected Error while trying to save: GW_v11_PRG.CFG"));
    program->Press(message, QStringLiteral("Return"));
    program->AwaitText(Menu, LockLabel, QStringLiteral("Unlocked"));
    EXPECT_TRUE(Installed.Read(Newer).contains("Program Config Lock=OFF\r\n"));
}

TEST_F(EnglishMenu, SaysWhenTheManualIsMissing) {
    Installed.Remove(QStringLiteral("Manuals/Gradewell Config.PDF"));
    const auto program = StartToMenu(Installed);
    program->Press(Menu, QStringLiteral("alt+h"));
    const QString message = QStringLiteral("Can't find Quick Start");
    program->AwaitWindow(message);
    program->Press(message, QStringLiteral("Return"));
    program->AwaitWindow(Menu);
    ExitByKeys(*program, Installed);
}

} // namespace
