#include "tests/admin/AdminWindowTest.h"

namespace {

const QString Warning = QStringLiteral(
    "The current path points to a folder that begins with 'GW' which will cause problems for Gradewell "
    "users.\n\nPlease select another path which does not 'point' inside a folder that begins with 'GW'.");

TEST_F(AdminWindow, ShowsTheStoredFolder) {
    ProgramConfig.PathToAdmin = QStringLiteral("  C:\\Admin\\2015 ");
    Open();
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\admin\\2015"));
    EXPECT_EQ(Get<FolderList>("dirHDir_Admin")->Path(), QStringLiteral("c:\\admin\\2015"));
    EXPECT_EQ(Get<QComboBox>("drvHDir_Admin")->property("drive").toString(), QStringLiteral("c:"));
    EXPECT_EQ(ProgramConfig.PathToAdmin, QStringLiteral("c:\\admin\\2015"));
}

TEST_F(AdminWindow, NoStoredFolderShowsNone) {
    ProgramConfig.PathToAdmin.clear();
    Open();
    EXPECT_TRUE(Label("lblAdminPath").isEmpty());
}

TEST_F(AdminWindow, AFolderThatCannotBeOpenedIsDroppedWithoutAWord) {
    for (const char* stored : {"c:\\gone", "c:\\admin\\2015\\gone", "q:\\admin", "nonsense"}) {
        ProgramConfig.PathToAdmin = QString::fromUtf8(stored);
        Open();
        EXPECT_TRUE(Label("lblAdminPath").isEmpty()) << stored;
        EXPECT_TRUE(ProgramConfig.PathToAdmin.isEmpty()) << stored;
        Click("cmdSaveRules");
        EXPECT_TRUE(Saved().contains("[Path to Admin]\r\n\"\"\r\n")) << stored;
    }
    EXPECT_TRUE(machine.Screen.Messages.empty());
}

TEST_F(AdminWindow, AGradebookFolderWarnsOnceAndIsSaved) {
    machine.MakeFolder(QStringLiteral("c:\\marks\\gwData"));
    Open();
    machine.Screen.Answer(MessageAnswer::Ok);
    Get<FolderList>("dirHDir_Admin")->setProperty("path", QStringLiteral("c:\\marks\\gwData"));
    ASSERT_EQ(machine.Screen.Messages.size(), 1U);
    EXPECT_EQ(machine.Screen.Messages[0].Title, QStringLiteral("Gradewell Path Error"));
    EXPECT_EQ(machine.Screen.Messages[0].Text, Warning);
    EXPECT_EQ(machine.Screen.Messages[0].Icon, MessageIcon::Critical);
    EXPECT_EQ(machine.Screen.Messages[0].Buttons, MessageButtons::Ok);
    Click("cmdSaveRules");
    EXPECT_EQ(ProgramConfig.PathToAdmin, QStringLiteral("c:\\marks\\gwdata"));
    machine.Screen.Answer(MessageAnswer::Ok);
    Open(); // once more on opening, and only once
    EXPECT_EQ(machine.Screen.Messages.size(), 2U);
}

TEST_F(AdminWindow, OnlyTheLastFolderIsLookedAt) {
    machine.MakeFolder(QStringLiteral("c:\\gwdata\\admin"));
    Open();
    Get<FolderList>("dirHDir_Admin")->setProperty("path", QStringLiteral("c:\\gwdata\\admin"));
    Get<FolderList>("dirHDir_Admin")->setProperty("path", QStringLiteral("c:\\"));
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\"));
    EXPECT_TRUE(machine.Screen.Messages.empty());
}

TEST_F(AdminWindow, BrowseTakesTheFolderOfTheName) {
    Open();
    machine.Screen.Answer(MessageAnswer::Ok);
    machine.Screen.AnswerFile(QStringLiteral("C:\\Admin\\2016\\Don't_Delete_Me"));
    Click("cmdAdminPath");
    ASSERT_EQ(machine.Screen.Messages.size(), 1U);
    const Message& notice = machine.Screen.Messages[0];
    EXPECT_EQ(notice.Title, QStringLiteral("Locate Gradewell Data Folders"));
    EXPECT_EQ(notice.Text,
              QStringLiteral("Use the 'Save in' drop down in the following dialog box to set the path to the Gradewell "
                             "Admin Edition data folder.\n\nPlease do NOT delete the 'Don't_Delete_Me' file "
                             "name.\n\nClick on Save when you're in the right 'place'.\n"));
    EXPECT_EQ(notice.Icon, MessageIcon::Information);
    EXPECT_EQ(notice.Buttons, MessageButtons::Ok);
    ASSERT_EQ(machine.Screen.FileDialogs.size(), 1U);
    const FileDialog& dialog = machine.Screen.FileDialogs[0];
    EXPECT_EQ(dialog.DialogKind, FileDialog::Kind::Save);
    EXPECT_EQ(dialog.Title, QStringLiteral("Locate Gradewell Data Folders"));
    EXPECT_EQ(dialog.Filter, QStringLiteral("All Files (*.*)|*.*"));
    EXPECT_EQ(dialog.FileName, QStringLiteral("c:\\admin\\2015\\Don't_Delete_Me"));
    EXPECT_TRUE(dialog.PathMustExist);
    EXPECT_FALSE(dialog.OverwritePrompt);
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\admin\\2016"));
    EXPECT_EQ(Get<QComboBox>("drvHDir_Admin")->currentIndex(), -1);
    EXPECT_TRUE(machine.Names(QStringLiteral("c:\\admin\\2016")).isEmpty());
}

TEST_F(AdminWindow, BrowseNamesTheProductOfTheEdition) {
    SetProductTexts(Edition::French);
    Open();
    machine.Screen.Answer(MessageAnswer::Ok);
    machine.Screen.AnswerFile(QString());
    Click("cmdAdminPath");
    EXPECT_TRUE(machine.Screen.Messages[0].Text.contains(QStringLiteral("the Carnelle Admin Edition data folder.")));
}

TEST_F(AdminWindow, BrowseCancelledChangesNothing) {
    Open();
    machine.Screen.Answer(MessageAnswer::Ok);
    machine.Screen.AnswerFile(QString());
    Click("cmdAdminPath");
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\admin\\2015"));
    EXPECT_EQ(machine.Screen.Messages.size(), 1U);
    EXPECT_EQ(Get<QComboBox>("drvHDir_Admin")->currentText(), QStringLiteral("c:"));
}

TEST_F(AdminWindow, BrowseIntoAGradebookFolderWarnsOnce) {
    machine.MakeFolder(QStringLiteral("c:\\GWdata"));
    Open();
    machine.Screen.Answer(MessageAnswer::Ok);
    machine.Screen.Answer(MessageAnswer::Ok);
    machine.Screen.AnswerFile(QStringLiteral("c:\\GWdata\\x"));
    Click("cmdAdminPath");
    ASSERT_EQ(machine.Screen.Messages.size(), 2U);
    EXPECT_EQ(machine.Screen.Messages[1].Text, Warning);
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\gwdata"));
}

TEST_F(AdminWindow, BrowseInARootTakesTheRoot) {
    Open();
    machine.Screen.Answer(MessageAnswer::Ok);
    machine.Screen.AnswerFile(QStringLiteral("c:\\Don't_Delete_Me"));
    Click("cmdAdminPath");
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\"));
}

TEST_F(AdminWindow, ClearThenSaveStoresNoFolder) {
    Open();
    Click("cmdClrAdminPath");
    EXPECT_TRUE(Label("lblAdminPath").isEmpty());
    EXPECT_EQ(ProgramConfig.PathToAdmin, QStringLiteral("c:\\admin\\2015"));
    Click("cmdSaveRules");
    EXPECT_TRUE(ProgramConfig.PathToAdmin.isEmpty());
    EXPECT_TRUE(Saved().contains("[Path to Admin]\r\n\"\"\r\n"));
}

TEST_F(AdminWindow, AClearedFolderIsTakenBackInTheList) {
    machine.MakeFolder(QStringLiteral("c:\\gwdata"));
    Open();
    auto* folders = Get<FolderList>("dirHDir_Admin");
    Click("cmdClrAdminPath");
    folders->setFocus();
    QTest::keyClick(folders, Qt::Key_Return); // the folder that is open there
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\admin\\2015"));
    EXPECT_TRUE(machine.Screen.Messages.empty());
    for (int time = 1; time <= 2; ++time) { // each time that it is chosen anew it warns
        machine.Screen.Answer(MessageAnswer::Ok);
        folders->setProperty("path", QStringLiteral("c:\\gwdata"));
        EXPECT_EQ(machine.Screen.Messages.size(), static_cast<std::size_t>(time));
        EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\gwdata"));
        Click("cmdClrAdminPath");
    }
    EXPECT_TRUE(Label("lblAdminPath").isEmpty());
}

TEST_F(AdminWindow, AFolderThatCannotBeReadIsRefused) {
    Open();
    machine.Screen.Answer(MessageAnswer::Ok);
    Get<FolderList>("dirHDir_Admin")->setProperty("path", QStringLiteral("c:\\gone"));
    machine.Screen.Answer(MessageAnswer::Ok);
    machine.Screen.Answer(MessageAnswer::Ok);
    machine.Screen.AnswerFile(QStringLiteral("c:\\gone\\Don't_Delete_Me"));
    Click("cmdAdminPath");
    ASSERT_EQ(machine.Screen.Messages.size(), 3U);
    for (const std::size_t refusal : {0U, 2U}) {
        const Message& message = machine.Screen.Messages[refusal];
        EXPECT_EQ(message.Title, QStringLiteral("Locate Gradewell Data Folders"));
        EXPECT_TRUE(message.Text.startsWith(QStringLiteral("The folder [c:\\gone] cannot be used.\n\n")));
        EXPECT_EQ(message.Icon, MessageIcon::Critical);
    }
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\admin\\2015"));
    EXPECT_EQ(Get<QComboBox>("drvHDir_Admin")->currentText(), QStringLiteral("c:"));
    EXPECT_EQ(Get<FolderList>("dirHDir_Admin")->Path(), QStringLiteral("c:\\admin\\2015"));
}

TEST_F(AdminWindow, BrowseWithoutAFolderProposesTheName) {
    ProgramConfig.PathToAdmin.clear();
    Open();
    machine.Screen.Answer(MessageAnswer::Ok);
    machine.Screen.AnswerFile(QStringLiteral("c:\\admin\\2016\\other name"));
    Click("cmdAdminPath");
    EXPECT_EQ(machine.Screen.FileDialogs[0].FileName, QStringLiteral("\\Don't_Delete_Me"));
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\admin\\2016"));
}

TEST_F(AdminWindow, StoredPathsOfEveryForm) {
    const char* const forms[][2] = {{"c:\\Admin\\2016\\", "c:\\admin\\2016"},
                                    {"C:\\ADMIN", "c:\\admin"},
                                    {"c:/admin/2016", "c:\\admin\\2016"},
                                    {"c:\\", "c:\\"},
                                    {"   ", ""}};
    for (const auto& form : forms) {
        ProgramConfig.PathToAdmin = QString::fromUtf8(form[0]);
        Open();
        EXPECT_EQ(Label("lblAdminPath"), QString::fromUtf8(form[1])) << form[0];
    }
    EXPECT_TRUE(machine.Screen.Messages.empty());
}

TEST_F(AdminWindow, ADriveThatIsNotReadyBringsOneMessage) {
    MappedVolumes drives(RealSystemCalls(), DriveTable{{QLatin1Char('c'), machine.Native(QStringLiteral("c:\\"))},
                                                       {QLatin1Char('g'), machine.Native(QStringLiteral("c:\\none"))}});
    ScriptedDesktop screen(drives, RealSystemCalls());
    Open();
    screen.Answer(MessageAnswer::Ok);
    Get<QComboBox>("drvHDir_Admin")->setProperty("drive", QStringLiteral("g:"));
    ASSERT_EQ(screen.Messages.size(), 1U);
    EXPECT_EQ(screen.Messages[0].Title, QStringLiteral("DISK ERROR"));
    EXPECT_EQ(screen.Messages[0].Text, QStringLiteral("Please check Drive G: and try again!"));
    EXPECT_EQ(screen.Messages[0].Icon, MessageIcon::Exclamation);
    EXPECT_EQ(screen.Messages[0].Buttons, MessageButtons::Ok);
    EXPECT_EQ(Get<QComboBox>("drvHDir_Admin")->currentText(), QStringLiteral("c:"));
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\admin\\2015"));
    window.reset();
}

TEST_F(AdminWindow, AnotherDriveOpensItsFolder) {
    MappedVolumes drives(RealSystemCalls(),
                         DriveTable{{QLatin1Char('c'), machine.Native(QStringLiteral("c:\\"))},
                                    {QLatin1Char('g'), machine.Native(QStringLiteral("c:\\admin"))}});
    ScriptedDesktop screen(drives, RealSystemCalls());
    Open();
    Get<QComboBox>("drvHDir_Admin")->setProperty("drive", QStringLiteral("g:"));
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("g:\\"));
    Get<QComboBox>("drvHDir_Admin")->setProperty("drive", QStringLiteral("c:"));
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\admin\\2015")); // the folder last chosen on it
    window.reset();
}

} // namespace
