#include "tests/transfer/TransferWindowTest.h"

#include <cerrno>

namespace {

using Kind = FaultyCalls::Kind;

QStringList DamagedCopies(const TestFolder& machine) {
    return machine.Names(QStringLiteral("c:\\gradewell")).filter(QStringLiteral(".damaged-"));
}

TEST_F(TransferWindow, SaveWithoutAChangeKeepsEveryByte) {
    for (const char* golden : {"transfer/secondary.cfg", "transfer/windsor.cfg", "transfer/elementary.cfg"}) {
        OpenWith(HandWritten(golden));
        machine.Write(destination, "c:\\elsewhere");
        Click("cmdSaveRules");
        EXPECT_FALSE(window->isVisible()) << golden;
        EXPECT_EQ(window->result(), QDialog::Accepted) << golden;
        EXPECT_EQ(Saved(), HandWritten(golden)) << golden;
        EXPECT_EQ(machine.Names(ProgramFolder), QStringList{QStringLiteral("GWT10_PRG.CFG")}) << golden;
    }
}

TEST_F(TransferWindow, SaveWritesWhatIsShown) {
    OpenWith(HandWritten("transfer/windsor.cfg"));
    Click("lblLocked");
    List("cboSIS")->setCurrentIndex(0);
    List("cboBoard")->setCurrentIndex(3);
    Get<FolderList>("dirHDir")->setProperty("path", QString::fromUtf8("c:\\Reports\\Été 2016"));
    AccessKey(*window, Qt::Key_S);
    QTRY_VERIFY(!window->isVisible());
    EXPECT_EQ(Saved(), HandWritten("transfer/secondary.cfg"));
}

TEST_F(TransferWindow, WindsorHartsIsSavedWithoutABoard) {
    OpenWith(HandWritten("transfer/secondary.cfg"));
    List("cboSIS")->setCurrentIndex(16);
    Click("cmdClrPath");
    Click("imgLocked");
    Click("cmdSaveRules");
    EXPECT_EQ(Saved(), HandWritten("transfer/windsor.cfg"));
}

TEST_F(TransferWindow, NoSystemIsSavedAsNone) {
    Open();
    List("cboBoard")->setCurrentIndex(-1);
    Click("cmdSaveRules");
    EXPECT_EQ(Saved(), HandWritten("transfer/nosystem.cfg"));
}

TEST_F(TransferWindow, TheOlderLayoutIsSavedAsTodays) {
    OpenWith(HandWritten("transfer/older.cfg"));
    Click("cmdSaveRules");
    const QByteArray saved = Saved();
    EXPECT_EQ(saved.count("\r\n"), 14);
    EXPECT_TRUE(saved.contains("\r\n[Path to Report Folder (may be blank)]\r\n\"\"\r\n\"\"\r\n"));
    EXPECT_TRUE(saved.endsWith("\r\n2\r\n\"\"\r\n[SIS Code Number]\r\n16\r\n\"\"\r\n[SIS Name]\r\n"
                               "\"eSIS - Ontario: Secondary - Public\"\r\n"));
    EXPECT_TRUE(DamagedCopies(machine).isEmpty());
}

struct FaultCase {
    Kind Call;
    int Error;
    const char* Number;
};

TEST_F(TransferWindow, AFailedSaveIsToldAndTheWindowStays) {
    const FaultCase cases[] = {
        {Kind::Write, ENOSPC, "61"}, {Kind::Write, EIO, "57"}, {Kind::Replace, EACCES, "70"}, {Kind::Sync, EIO, "57"}};
    for (const FaultCase& row : cases) {
        FaultyCalls faulty;
        TestFolder other(faulty);
        other.Write(file, HandWritten("transfer/windsor.cfg"));
        other.Write(destination, "x");
        Open();
        List("cboSIS")->setCurrentIndex(3);
        faulty.FailAll(row.Call, row.Error);
        other.Screen.Answer(MessageAnswer::Ok);
        Click("cmdSaveRules");
        ASSERT_EQ(other.Screen.Messages.size(), 1U) << row.Number;
        EXPECT_EQ(other.Screen.Messages[0].Title,
                  QStringLiteral("GWT10_PRG.CFG SAVE ERROR: ") + QString::fromUtf8(row.Number));
        EXPECT_EQ(other.Screen.Messages[0].Text,
                  QStringLiteral("Unexpected Error while trying to save: GWT10_PRG.CFG"));
        EXPECT_EQ(other.Screen.Messages[0].Icon, MessageIcon::Critical);
        EXPECT_EQ(other.Screen.Messages[0].Buttons, MessageButtons::Ok);
        EXPECT_TRUE(window->isVisible());
        EXPECT_EQ(Shown(), "Trillium - KPRDSB / Secondary - Public, on, board");
        EXPECT_EQ(other.Read(file), HandWritten("transfer/windsor.cfg"));
        EXPECT_TRUE(other.Exists(destination));
        window.reset();
    }
}

TEST_F(TransferWindow, AFailedSaveCanBeRepeated) {
    OpenWith(HandWritten("transfer/windsor.cfg"));
    calls.FailFirst(Kind::Write, ENOSPC, 1);
    machine.Screen.Answer(MessageAnswer::Ok);
    Click("lblLocked");
    Click("cmdSaveRules");
    EXPECT_TRUE(window->isVisible());
    Click("cmdSaveRules");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(Saved(), HandWritten("transfer/windsor.cfg").replace("Lock=OFF", "Lock=ON"));
}

TEST_F(TransferWindow, ADamagedFileIsKeptBeforeTheFirstSave) {
    const QByteArray damaged = HandWritten("transfer/windsor.cfg").left(100);
    OpenWith(damaged);
    List("cboBoard")->setCurrentIndex(2);
    Click("cmdSaveRules");
    ASSERT_EQ(DamagedCopies(machine), QStringList{QStringLiteral("GWT10_PRG.CFG.damaged-20160307-093000")});
    EXPECT_EQ(machine.Read(QStringLiteral("c:\\gradewell\\GWT10_PRG.CFG.damaged-20160307-093000")), damaged);
    Open();
    Click("cmdSaveRules");
    EXPECT_EQ(DamagedCopies(machine).size(), 1);
}

TEST_F(TransferWindow, ADamagedFileThatCannotBeKeptIsNotReplaced) {
    const QByteArray damaged("[t]\r\n[v]\r\n");
    OpenWith(damaged);
    calls.FailFirst(Kind::Write, ENOSPC, 1);
    machine.Screen.Answer(MessageAnswer::Ok);
    Click("cmdSaveRules");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(Saved(), damaged);
    Click("cmdSaveRules");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(DamagedCopies(machine).size(), 1);
}

TEST_F(TransferWindow, CancelKeepsADamagedFileAsItIs) {
    OpenWith("[t]\r\n");
    Click("cmdRulesCancel");
    EXPECT_EQ(Saved(), QByteArray("[t]\r\n"));
    EXPECT_TRUE(DamagedCopies(machine).isEmpty());
}

TEST_F(TransferWindow, AFileCutAtEveryByteOpensAndSaves) {
    const QByteArray whole = HandWritten("transfer/windsor.cfg");
    for (qsizetype cut = 0; cut <= whole.size(); cut += 7) {
        OpenWith(whole.left(cut));
        Click("cmdSaveRules");
        EXPECT_FALSE(window->isVisible()) << cut;
        EXPECT_EQ(Saved().count("\r\n"), 14) << cut;
    }
}

} // namespace
