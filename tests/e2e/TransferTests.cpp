#include "tests/e2e/Boards.h"

namespace {

const QString File = QStringLiteral("GWT10_PRG.CFG");
const QString DestinationPath = QStringLiteral("GWT_DestPath.cfg");

class TransferProgram : public EachBoard {
protected:
    const QString Title = Menu + QStringLiteral(" - TRANSFER PROGRAM");

    void SetUp() override { Installed.Write(Installed.Edition.TransferProgram, "MZ"); }
    QByteArray Stored() const { return Golden(Installed.Edition.Component + QStringLiteral("-transfer.cfg")); }
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
