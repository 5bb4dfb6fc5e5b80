#include "tests/transfer/TransferWindowTest.h"

namespace {

QByteArray FileWithPath(const char* path) {
    return HandWritten("transfer/windsor.cfg").replace("blank)]\r\n\"\"", QByteArray("blank)]\r\n\"") + path + '"');
}

TEST_F(TransferWindow, AReportFolderThatIsGoneAsksToRetry) {
    machine.Write(file, FileWithPath("c:\\floppy\\reports"));
    machine.Screen.Answer(MessageAnswer::Retry);
    machine.Screen.Answer(MessageAnswer::Retry, [this] { machine.MakeFolder(QStringLiteral("c:\\floppy\\reports")); });
    Open();
    ASSERT_EQ(machine.Screen.Messages.size(), 2U);
    const Message& question = machine.Screen.Messages[0];
    EXPECT_EQ(question.Title, QStringLiteral("REPORT PATH ERROR"));
    EXPECT_EQ(
        question.Text,
        QStringLiteral("The PATH [c:\\floppy\\reports] to your FILES is invalid.\n\nIf these files are on a floppy "
                       "disk, please insert the disk and try again.\n\nIf this path is to your hard drive, click "
                       "on 'Cancel'; then, Reset or Clear the path."));
    EXPECT_EQ(question.Icon, MessageIcon::Critical);
    EXPECT_EQ(question.Buttons, MessageButtons::RetryCancel);
    EXPECT_EQ(Label("lblReportPath"), QStringLiteral("c:\\floppy\\reports"));
    EXPECT_EQ(List("drvHDir")->currentText(), QStringLiteral("c:"));
}

TEST_F(TransferWindow, CancelOfTheQuestionMovesToDriveC) {
    machine.Write(file, FileWithPath("q:\\reports"));
    machine.Screen.Answer(MessageAnswer::Cancel);
    Open();
    EXPECT_EQ(machine.Screen.Messages.size(), 1U);
    EXPECT_EQ(Label("lblReportPath"), QStringLiteral("c:\\"));
    EXPECT_EQ(List("drvHDir")->currentText(), QStringLiteral("c:"));
    EXPECT_EQ(Get<FolderList>("dirHDir")->Path(), QStringLiteral("c:\\"));
    EXPECT_EQ(Saved(), FileWithPath("q:\\reports"));
}

TEST_F(TransferWindow, AChosenFolderStaysChosen) {
    machine.MakeFolder(QStringLiteral("c:\\gwdata"));
    OpenWith(HandWritten("transfer/windsor.cfg"));
    Get<FolderList>("dirHDir")->setProperty("path", QStringLiteral("c:\\Reports"));
    EXPECT_EQ(Label("lblReportPath"), QStringLiteral("c:\\reports"));
    EXPECT_EQ(Get<FolderList>("dirHDir")->Path(), QStringLiteral("c:\\Reports"));
    window->CheckReportPath();
    EXPECT_EQ(Label("lblReportPath"), QStringLiteral("c:\\reports"));
    Get<FolderList>("dirHDir")->setProperty("path", QStringLiteral("c:\\gwdata")); // no folder rule here
    EXPECT_EQ(Label("lblReportPath"), QStringLiteral("c:\\gwdata"));
    EXPECT_TRUE(machine.Screen.Messages.empty());
}

TEST_F(TransferWindow, AFolderThatVanishedAsksToRetry) {
    machine.MakeFolder(QStringLiteral("c:\\passing"));
    OpenWith(HandWritten("transfer/windsor.cfg"));
    Get<FolderList>("dirHDir")->setProperty("path", QStringLiteral("c:\\passing"));
    machine.Remove(QStringLiteral("c:\\passing"));
    machine.Screen.Answer(MessageAnswer::Cancel);
    window->CheckReportPath();
    ASSERT_EQ(machine.Screen.Messages.size(), 1U);
    EXPECT_TRUE(machine.Screen.Messages[0].Text.startsWith(QStringLiteral("The PATH [c:\\passing] to your")));
    EXPECT_EQ(Label("lblReportPath"), QStringLiteral("c:\\"));
}

TEST_F(TransferWindow, BrowseTakesTheFolderOfTheName) {
    OpenWith(HandWritten("transfer/secondary.cfg"));
    machine.Screen.Answer(MessageAnswer::Ok);
    machine.Screen.AnswerFile(QStringLiteral("c:\\marks, reports\\Don't_Delete_Me"));
    Click("cmdGWT_Browse");
    ASSERT_EQ(machine.Screen.Messages.size(), 1U);
    EXPECT_EQ(machine.Screen.Messages[0].Title, QStringLiteral("Locate Gradewell Data Folders"));
    EXPECT_EQ(machine.Screen.Messages[0].Text,
              QStringLiteral("Use the 'Save in' drop down in the following dialog box to set the path to the Report "
                             "folder.\n\nPlease do NOT delete the 'Don't_Delete_Me' file name.\n\nClick on Save when "
                             "you're in the right 'place'."));
    EXPECT_EQ(machine.Screen.Messages[0].Icon, MessageIcon::Information);
    ASSERT_EQ(machine.Screen.FileDialogs.size(), 1U);
    const FileDialog& dialog = machine.Screen.FileDialogs[0];
    EXPECT_EQ(dialog.DialogKind, FileDialog::Kind::Save);
    EXPECT_EQ(dialog.Title, QStringLiteral("Locate Gradewell Data Folders"));
    EXPECT_EQ(dialog.Filter, QStringLiteral("All Files (*.*)|*.*"));
    EXPECT_EQ(dialog.FileName, QString::fromUtf8("c:\\reports\\été 2016\\Don't_Delete_Me"));
    EXPECT_TRUE(dialog.PathMustExist);
    EXPECT_EQ(Label("lblReportPath"), QStringLiteral("c:\\marks, reports"));
    EXPECT_TRUE(machine.Names(QStringLiteral("c:\\marks, reports")).isEmpty());
}

TEST_F(TransferWindow, BrowseCancelledChangesNothing) {
    OpenWith(HandWritten("transfer/secondary.cfg"));
    machine.Screen.Answer(MessageAnswer::Ok);
    machine.Screen.AnswerFile(QString());
    window->SpeakFrench_GWT(); // the box stays English: the window's selector never changes
    Click("cmdGWT_Browse");
    EXPECT_EQ(machine.Screen.Messages[0].Title, QStringLiteral("Locate Gradewell Data Folders"));
    EXPECT_EQ(machine.Screen.Messages.size(), 1U);
    EXPECT_EQ(Label("lblReportPath"), QString::fromUtf8("c:\\reports\\été 2016"));
}

TEST_F(TransferWindow, BrowseOnAnotherDriveStaysThere) {
    machine.Write(file, FileWithPath("c:\\reports"));
    MappedVolumes drives(calls, DriveTable{{QLatin1Char('c'), machine.Native(QStringLiteral("c:\\"))},
                                           {QLatin1Char('g'), machine.Native(QStringLiteral("c:\\Reports"))}});
    ScriptedDesktop screen(drives, calls);
    Open();
    screen.Answer(MessageAnswer::Ok);
    screen.AnswerFile(QString::fromUtf8("g:\\Été 2016\\Don't_Delete_Me"));
    Click("cmdGWT_Browse");
    EXPECT_EQ(Label("lblReportPath"), QString::fromUtf8("g:\\été 2016"));
    window->CheckReportPath();
    EXPECT_EQ(Label("lblReportPath"), QString::fromUtf8("g:\\été 2016"));
    window.reset();
}

TEST_F(TransferWindow, BrowseWithoutAFolderProposesTheName) {
    OpenWith(HandWritten("transfer/windsor.cfg"));
    machine.Screen.Answer(MessageAnswer::Ok);
    machine.Screen.AnswerFile(QString());
    Click("cmdGWT_Browse");
    EXPECT_EQ(machine.Screen.FileDialogs[0].FileName, QStringLiteral("\\Don't_Delete_Me"));
    EXPECT_TRUE(Label("lblReportPath").isEmpty());
}

TEST_F(TransferWindow, AClearedFolderIsTakenBackInTheList) {
    OpenWith(FileWithPath("c:\\reports"));
    Click("cmdClrPath");
    auto* folders = Get<FolderList>("dirHDir");
    folders->setFocus();
    QTest::keyClick(folders, Qt::Key_Return); // the folder that is open there
    EXPECT_EQ(Label("lblReportPath"), QStringLiteral("c:\\reports"));
}

TEST_F(TransferWindow, StoredPathsOfEveryForm) {
    machine.MakeFolder(QStringLiteral("c:\\marks"));
    const char* const forms[][2] = {
        {"c:\\Reports\\", "c:\\reports"}, {"C:\\MARKS", "c:\\marks"}, {" c:\\marks ", "c:\\marks"},
        {"c:/marks", "c:\\marks"},        {"c:\\", "c:\\"},           {"  ", ""}};
    for (const auto& form : forms) {
        OpenWith(FileWithPath(form[0]));
        EXPECT_EQ(Label("lblReportPath"), QString::fromUtf8(form[1])) << form[0];
    }
    EXPECT_TRUE(machine.Screen.Messages.empty());
}

TEST_F(TransferWindow, ClearThenSaveStoresNoFolder) {
    OpenWith(HandWritten("transfer/secondary.cfg"));
    Click("cmdClrPath");
    EXPECT_TRUE(Label("lblReportPath").isEmpty());
    Click("cmdSaveRules");
    EXPECT_TRUE(Saved().contains("[Path to Report Folder (may be blank)]\r\n\"\"\r\n\"\"\r\n"));
}

TEST_F(TransferWindow, ADriveThatIsNotReadyBringsOneMessage) {
    machine.Write(file, FileWithPath("c:\\reports"));
    MappedVolumes drives(calls, DriveTable{{QLatin1Char('c'), machine.Native(QStringLiteral("c:\\"))},
                                           {QLatin1Char('g'), machine.Native(QStringLiteral("c:\\none"))}});
    ScriptedDesktop screen(drives, calls);
    Open();
    screen.Answer(MessageAnswer::Ok);
    List("drvHDir")->setProperty("drive", QStringLiteral("g:"));
    ASSERT_EQ(screen.Messages.size(), 1U);
    EXPECT_EQ(screen.Messages[0].Title, QStringLiteral("DISK ERROR"));
    EXPECT_EQ(screen.Messages[0].Text, QStringLiteral("Please check Drive G: and try again!"));
    EXPECT_EQ(screen.Messages[0].Icon, MessageIcon::Exclamation);
    EXPECT_EQ(List("drvHDir")->currentText(), QStringLiteral("c:"));
    EXPECT_EQ(Label("lblReportPath"), QStringLiteral("c:\\reports"));
    EXPECT_EQ(Get<FolderList>("dirHDir")->Path(), QStringLiteral("c:\\reports"));
    window.reset();
}

} // namespace
