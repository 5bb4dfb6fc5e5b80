#include "platform/widgets/Pictures.h"
#include "tests/transfer/TransferWindowTest.h"
#include "transfer/InformationSystems.h"

namespace {

QByteArray FileOf(int board, int system) {
    return "[t]\r\n[2016 CY]\r\nProgram Config Lock=OFF\r\n[Path to Report Folder (may be "
           "blank)]\r\n\"\"\r\n\"\"\r\n[b]\r\n" +
           QByteArray::number(board) + "\r\n\"\"\r\n[SIS Code Number]\r\n" + QByteArray::number(system) +
           "\r\n\"\"\r\n[SIS Name]\r\n\"\"\r\n";
}

TEST_F(TransferWindow, ShowsTheStoredFile) {
    OpenWith(HandWritten("transfer/secondary.cfg"));
    EXPECT_EQ(Shown(), "Trillium / Secondary - Catholic, on, board");
    EXPECT_EQ(Lock(), "Locked closed");
    EXPECT_EQ(Label("lblReportPath"), QString::fromUtf8("c:\\reports\\été 2016"));
    EXPECT_EQ(Get<FolderList>("dirHDir")->Path(), QString::fromUtf8("c:\\reports\\été 2016"));
    OpenWith(HandWritten("transfer/windsor.cfg"));
    EXPECT_EQ(Shown(), "Windsor-Harts / Secondary - Public, on, habits");
    EXPECT_EQ(Lock(), "Unlocked open");
    EXPECT_TRUE(Label("lblReportPath").isEmpty());
    OpenWith(HandWritten("transfer/older.cfg"));
    EXPECT_EQ(Shown(), "eSIS - Ontario / Secondary - Public, on, board");
    EXPECT_TRUE(Label("lblReportPath").isEmpty());
}

TEST_F(TransferWindow, AMissingOrDamagedFileOpensLockedAndLetsTheUserGoOn) {
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("[t]\r\n"), HandWritten("transfer/windsor.cfg").left(120)}) {
        TransferLock = 0;
        OpenWith(bytes);
        EXPECT_EQ(Shown(), " / Elementary - Public, on, board");
        EXPECT_EQ(Lock(), "Locked closed");
        EXPECT_TRUE(Label("lblReportPath").isEmpty());
    }
    machine.Remove(file);
    Open();
    EXPECT_EQ(Shown(), " / Elementary - Public, on, board");
    EXPECT_EQ(Lock(), "Locked closed");
    EXPECT_TRUE(machine.Screen.Messages.empty());
    List("cboSIS")->setCurrentIndex(7);
    List("cboBoard")->setCurrentIndex(2);
    EXPECT_EQ(Shown(), "eSIS - Ontario / Secondary - Public, on, board");
}

// Every stored pair, and numbers that are not offered: an elementary board ends at Trillium, whatever is stored.
TEST_F(TransferWindow, OpensWithEveryStoredPair) {
    const char* const boards[] = {"Elementary - Public", "Elementary - Catholic", "Secondary - Public",
                                  "Secondary - Catholic"};
    for (int system = 0; system <= 23; ++system) {
        const int number = system < 1 || system > 22 ? 1 : system;
        const bool offered = PositionOfSystem(static_cast<std::int16_t>(number)) >= 0;
        for (int board = 0; board <= 3; ++board) {
            OpenWith(FileOf(board, system));
            const std::string chosen = offered ? SystemName(static_cast<std::int16_t>(number)).toStdString() : "";
            const std::string frame = number == 10 ? ", habits" : offered ? ", board" : "";
            const std::string expected = board < 2 ? std::string("Trillium / ") + boards[board] + ", off, board"
                                                   : chosen + " / " + boards[board] + ", on" + frame;
            EXPECT_EQ(Shown(), expected) << system << " " << board;
        }
    }
}

TEST_F(TransferWindow, ANegativeBoardSelectsNone) {
    OpenWith(FileOf(-3, 16));
    EXPECT_EQ(Shown(), "eSIS - Ontario / , on, board");
    Click("cmdSaveRules");
    EXPECT_TRUE(Saved().contains("\r\n-1\r\n\"\"\r\n[SIS Code Number]\r\n16\r\n"));
    EXPECT_TRUE(Saved().endsWith("[SIS Name]\r\n\"eSIS - Ontario: \"\r\n"));
}

TEST_F(TransferWindow, SystemAndBoardActOnEachOtherForTheUser) {
    OpenWith(FileOf(3, 16));
    List("cboSIS")->setFocus();
    QTest::keyClick(List("cboSIS"), Qt::Key_End);
    EXPECT_EQ(Shown(), "Windsor-Harts / Secondary - Public, on, habits");
    QTest::keyClick(List("cboSIS"), Qt::Key_Up);
    EXPECT_EQ(Shown(), "SASI - YCDSB / Secondary - Public, on, board");
    List("cboBoard")->setFocus();
    QTest::keyClick(List("cboBoard"), Qt::Key_Home);
    EXPECT_EQ(Shown(), "Trillium / Elementary - Public, off, board");
    QTest::keyClick(List("cboBoard"), Qt::Key_Down);
    EXPECT_EQ(Shown(), "Trillium / Elementary - Catholic, off, board");
    QTest::keyClick(List("cboBoard"), Qt::Key_Down);
    EXPECT_EQ(Shown(), "Trillium / Secondary - Public, on, board");
}

TEST_F(TransferWindow, ChoosingTheSameEntryAgainIsAClickToo) {
    OpenWith(FileOf(3, 10));
    EXPECT_EQ(Shown(), "Windsor-Harts / Secondary - Catholic, on, habits");
    Q_EMIT List("cboSIS")->activated(16);
    EXPECT_EQ(Shown(), "Windsor-Harts / Secondary - Public, on, habits");
}

TEST_F(TransferWindow, TheLockIsToggledByPicturesLabelAndKeys) {
    OpenWith(HandWritten("transfer/secondary.cfg"));
    const QByteArray before = Saved();
    Click("imgLocked");
    EXPECT_EQ(Lock(), "Unlocked open");
    EXPECT_EQ(TransferLock, 0);
    EXPECT_EQ(machine.Screen.PaintRounds, 1);
    Click("imgUnlocked");
    EXPECT_EQ(Lock(), "Locked closed");
    EXPECT_EQ(TransferLock, 1);
    Click("lblLocked");
    EXPECT_EQ(Lock(), "Unlocked open");
    Click("lblLocked");
    EXPECT_EQ(Lock(), "Locked closed");
    Get<QWidget>("imgLocked")->setFocus();
    QTest::keyClick(window->focusWidget(), Qt::Key_Space);
    EXPECT_EQ(Lock(), "Unlocked open");
    EXPECT_EQ(window->focusWidget()->objectName(), QStringLiteral("imgUnlocked"));
    QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Lock(), "Locked closed");
    EXPECT_EQ(window->focusWidget()->objectName(), QStringLiteral("imgLocked"));
    EXPECT_EQ(machine.Screen.PaintRounds, 6);
    EXPECT_EQ(Saved(), before);
}

TEST_F(TransferWindow, CancelLeavesTheFileAndTheNextLoadReadsItAgain) {
    for (const int way : {0, 1, 2}) {
        OpenWith(HandWritten("transfer/secondary.cfg"));
        machine.Write(destination, "x");
        Click("imgLocked");
        List("cboSIS")->setCurrentIndex(5);
        Click("cmdClrPath");
        if (way == 0) {
            Click("cmdRulesCancel");
        } else if (way == 1) {
            QTest::keyClick(window.get(), Qt::Key_Escape);
        } else {
            window->close();
        }
        EXPECT_FALSE(window->isVisible());
        EXPECT_EQ(window->result(), QDialog::Rejected);
        EXPECT_EQ(Saved(), HandWritten("transfer/secondary.cfg"));
        EXPECT_TRUE(machine.Exists(destination));
        EXPECT_EQ(TransferLock, 0);
        Open();
        EXPECT_EQ(Lock(), "Locked closed");
        EXPECT_EQ(Shown(), "Trillium / Secondary - Catholic, on, board");
    }
}

TEST_F(TransferWindow, WorkHabitsAreEditedInTheTextEditor) {
    OpenWith(HandWritten("transfer/windsor.cfg"));
    machine.Screen.Answer(MessageAnswer::Ok);
    Click("cmdWH_WorkHabits");
    ASSERT_EQ(machine.Screen.Messages.size(), 1U);
    const Message& question = machine.Screen.Messages[0];
    EXPECT_EQ(question.Title, QStringLiteral("CREATE/EDIT 'WorkHabits.txt'"));
    EXPECT_EQ(question.Text,
              QStringLiteral("This routine is used to create and/or edit a file with customized Work Habits codes for "
                             "use with Windsor-Harts\n\nThis file must:\n   -> have each code on a separate line.\n   "
                             "-> be named 'WorkHabits.txt'.\n   -> be saved in this folder: c:\\gradewell.\n"));
    EXPECT_EQ(question.Buttons, MessageButtons::OkCancel);
    EXPECT_EQ(question.Icon, MessageIcon::Question);
    ASSERT_EQ(machine.Screen.Started.size(), 1U);
    EXPECT_EQ(machine.Screen.Started[0].Program, HelperProgram::TextEditor);
    EXPECT_EQ(machine.Screen.Started[0].Path, QStringLiteral("c:\\gradewell\\WorkHabits.txt"));
    EXPECT_FALSE(machine.Exists(QStringLiteral("c:\\gradewell\\WorkHabits.txt")));
    machine.Screen.Answer(MessageAnswer::Cancel);
    Click("cmdWH_WorkHabits");
    EXPECT_EQ(machine.Screen.Started.size(), 1U);
}

TEST_F(TransferWindow, NoTextEditorIsTold) {
    OpenWith(HandWritten("transfer/windsor.cfg"));
    machine.Screen.StartFailure = MakeError(ErrorNumber::FileNotFound);
    machine.Screen.Answer(MessageAnswer::Ok);
    machine.Screen.Answer(MessageAnswer::Ok);
    Click("cmdWH_WorkHabits");
    ASSERT_EQ(machine.Screen.Messages.size(), 2U);
    EXPECT_EQ(machine.Screen.Messages[1].Title, QStringLiteral("Can't start the text editor"));
    EXPECT_EQ(machine.Screen.Messages[1].Text,
              QStringLiteral("Sorry, no text editor could be started for the file 'c:\\gradewell\\WorkHabits.txt'."));
    EXPECT_EQ(machine.Screen.Messages[1].Icon, MessageIcon::Critical);
    EXPECT_TRUE(window->isVisible());
}

} // namespace
