#include "tests/e2e/Boards.h"

#include <QFile>

namespace {

const QString File = QStringLiteral("GWT10_PRG.CFG");
const QString DestinationPath = QStringLiteral("GWT_DestPath.cfg");

class TransferProgram : public EachBoard {
protected:
    const QString Title = Menu + QStringLiteral(" - TRANSFER PROGRAM");

    void SetUp() override { Installed.Write(Installed.Edition.TransferProgram, "MZ"); }
    QByteArray Stored() const { return Golden(Installed.Edition.Component + QStringLiteral("-transfer.cfg")); }
    /// Stored() with Windsor-Harts, which has no board, and no report folder.
    QByteArray Windsor() const {
        return Stored()
            .replace("\"c:\\\"", "\"\"")
            .replace("Sec]\r\n3", "Sec]\r\n2")
            .replace("Number]\r\n16", "Number]\r\n10")
            .replace("eSIS - Ontario: Secondary - Catholic", "Windsor-Harts");
    }
    void AwaitShown(const char* frame) {
        Program->AwaitControl(Title, QString::fromLatin1(frame), QStringLiteral("to be shown"),
                              [](const auto& seen) { return seen.Visible; });
    }
};

INSTANTIATE_TEST_SUITE_P(Editions, TransferProgram, testing::Values("english", "french"), EditionOf);

TEST_P(TransferProgram, EditsTheOptionsByMouseAndKeysAndSavesThemToTheByte) {
    Installed.Write(DestinationPath, "left over");
    OpenFromMenu("alt+t", Title);
    AwaitText(Title, "lblLocked", "Locked");
    AwaitText(Title, "cboBoard", "Elementary - Public");
    Program->Click(Title, QStringLiteral("imgLocked"));
    AwaitText(Title, "lblLocked", "Unlocked");

    TabTo(Title, "cboSIS");
    Type(Title, "End");
    AwaitText(Title, "cboSIS", "Windsor-Harts");
    AwaitShown("fraWH_WorkHabits");
    Type(Title, "alt+w");
    Program->Press(QStringLiteral("CREATE/EDIT 'WorkHabits.txt'"), QStringLiteral("Escape"));
    TabTo(Title, "cboSIS");
    Type(Title, "Home");
    AwaitShown("fraSetupBoard");
    Type(Title, "Down", 7);
    AwaitText(Title, "cboSIS", "eSIS - Ontario");
    TabTo(Title, "cboBoard");
    Type(Title, "Home");
    AwaitText(Title, "cboSIS", "Trillium");
    Type(Title, "End");
    AwaitText(Title, "cboBoard", "Secondary - Catholic");
    TabTo(Title, "cboSIS");
    Type(Title, "Down", 7);
    TabTo(Title, "drvHDir");
    Type(Title, "Home");
    AwaitText(Title, "lblReportPath", "c:\\");
    EXPECT_FALSE(Installed.Exists(File)) << "nothing is stored before Save";

    Type(Title, "alt+s");
    Program->AwaitWindow(Menu);
    EXPECT_EQ(Installed.Read(File).toStdString(), Stored().toStdString());
    EXPECT_FALSE(Installed.Exists(DestinationPath));
}

TEST_P(TransferProgram, CancelLeavesTheLockOfTheFile) {
    Installed.Write(File, Stored());
    OpenFromMenu("alt+t", Title);
    AwaitText(Title, "cboSIS", "eSIS - Ontario");
    AwaitText(Title, "lblLocked", "Unlocked");
    Program->Click(Title, QStringLiteral("lblLocked"));
    AwaitText(Title, "lblLocked", "Locked");
    Program->Click(Title, QStringLiteral("cmdRulesCancel"));
    Program->AwaitWindow(Menu);
    EXPECT_EQ(Installed.Read(File), Stored());
    Type(Menu, "alt+t");
    AwaitText(Title, "lblLocked", "Unlocked");
}

TEST_P(TransferProgram, AsksForAReportFolderThatIsGoneAndTakesAnother) {
    if (UnderWine()) {
        GTEST_SKIP() << "the drives are those of drives.conf, which Windows does not read";
    }
    MakeDrives();
    Installed.Write(File, Stored().replace("\"c:\\\"", "\"g:\\late\""));
    const QString gone = QStringLiteral("REPORT PATH ERROR");
    OpenFromMenu("alt+t", gone);
    Installed.MakeFolder(QStringLiteral("shared/Late"));
    Program->Click(gone, Installed.Edition.Shown("Retry"));
    AwaitText(Title, "lblReportPath", "g:\\late");
    AwaitText(Title, "drvHDir", "g:");

    TabTo(Title, "drvHDir");
    Type(Title, "Down"); // to h:
    Program->Press(QStringLiteral("DISK ERROR"), QStringLiteral("Return"));
    AwaitText(Title, "drvHDir", "g:");
    AwaitText(Title, "lblReportPath", "g:\\late");
    OpenRoot(Title, "dirHDir");
    AwaitText(Title, "lblReportPath", "g:\\");

    Installed.MakeFolder(QStringLiteral("shared/GW Reports"));
    const QString locate = QStringLiteral("Locate Gradewell Data Folders");
    Type(Title, "alt+b");
    Program->Press(locate, QStringLiteral("Return"));
    Program->Await(QStringLiteral("the file dialog"), [&](const SeenScreen& screen) {
        const SeenWindow* dialog = screen.Window(locate);
        return dialog != nullptr && dialog->Active && dialog->Has(QStringLiteral("fileNameEdit"));
    });
    Program->Enter(locate, QStringLiteral("fileNameEdit"), Installed.Folder() + QStringLiteral("/shared/GW Reports/x"));
    PressKey(QStringLiteral("Return"));
    AwaitText(Title, "lblReportPath", "g:\\gw reports"); // no folder rule here
    Type(Title, "alt+s");
    Program->AwaitWindow(Menu);
    EXPECT_EQ(Installed.Read(File).toStdString(), Stored().replace("\"c:\\\"", "\"g:\\gw reports\"").toStdString());
    EXPECT_FALSE(Installed.Exists(QStringLiteral("shared/GW Reports/x")));
}

TEST_P(TransferProgram, OpensTheWorkHabitsList) {
    if (UnderWine()) {
        GTEST_SKIP() << "the opener is a script; Windows' own is tried with the program as it is handed out";
    }
    Installed.Write(File, Windsor());
    Installed.Write(QStringLiteral("xdg-open"), "#!/bin/sh\nprintf %s \"$1\" > \"${0%/*}/opened\"\n");
    const QString opener = Installed.Folder() + QStringLiteral("/xdg-open");
    QFile::setPermissions(opener, QFile::ReadOwner | QFile::ExeOwner);
    OpenFromMenu("alt+t", Title, {QStringLiteral("PATH=") + Installed.Folder() + QStringLiteral(":/usr/bin:/bin")});
    AwaitShown("fraWH_WorkHabits");
    const QString question = QStringLiteral("CREATE/EDIT 'WorkHabits.txt'");
    Type(Title, "alt+w");
    Program->Press(question, QStringLiteral("Return")); // there is no such file yet, and no terminal to make one in
    Program->Press(QStringLiteral("Can't start the text editor"), QStringLiteral("Return"));
    Installed.Write(QStringLiteral("WorkHabits.txt"), "E\r\n");
    Program->Click(Title, QStringLiteral("cmdWH_WorkHabits"));
    Program->Press(question, QStringLiteral("Return"));
    const QByteArray list = Installed.Folder().toUtf8() + "/WorkHabits.txt";
    Program->Await(QStringLiteral("the list to be opened"),
                   [&](const SeenScreen&) { return Installed.Read(QStringLiteral("opened")) == list; });
    EXPECT_EQ(Installed.Read(QStringLiteral("WorkHabits.txt")), QByteArray("E\r\n"));
    Type(Title, "alt+s");
    Program->AwaitWindow(Menu);
    EXPECT_EQ(Installed.Read(File).toStdString(), Windsor().toStdString());
}

TEST_P(TransferProgram, ADamagedFileOpensLockedAndIsKept) {
    const QByteArray damaged = Windsor().left(100);
    Installed.Write(File, damaged);
    OpenFromMenu("alt+t", Title);
    AwaitText(Title, "lblLocked", "Locked");
    AwaitText(Title, "cboSIS", "");
    AwaitText(Title, "cboBoard", "Elementary - Public");
    TabTo(Title, "cboSIS");
    Type(Title, "End");
    AwaitShown("fraWH_WorkHabits");
    TabTo(Title, "imgLocked");
    Type(Title, "space");
    AwaitText(Title, "lblLocked", "Unlocked");
    Type(Title, "alt+s");
    Program->AwaitWindow(Menu);
    EXPECT_EQ(Installed.Read(File).toStdString(), Windsor().toStdString());
    const QStringList copies = Installed.Files().filter(File + QStringLiteral(".damaged-"));
    ASSERT_EQ(copies.size(), 1);
    EXPECT_EQ(Installed.Read(copies[0]), damaged);
}

TEST_P(TransferProgram, AFailedSaveIsToldAndTheWindowStays) {
    Installed.MakeFolder(File);
    OpenFromMenu("alt+t", Title);
    Program->Click(Title, QStringLiteral("cmdSaveRules"));
    const QString error = QStringLiteral("GWT10_PRG.CFG SAVE ERROR: 75");
    EXPECT_EQ(Program->AwaitWindow(error).Control(QStringLiteral("qt_msgbox_label")).Text,
              QStringLiteral("Unexpected Error while trying to save: GWT10_PRG.CFG"));
    Program->Press(error, QStringLiteral("Return"));
    Program->AwaitWindow(Title);
}

} // namespace
