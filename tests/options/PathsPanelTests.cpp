#include "options/FolderRule.h"
#include "tests/options/SetupFixture.h"

namespace {

class Paths : public SetupTest {
protected:
    QString ListPath(const char* list) { return C<QWidget>(QString::fromUtf8(list))->property("path").toString(); }
    QString Drive(const char* list) { return C<QWidget>(QString::fromUtf8(list))->property("drive").toString(); }
    void OpenFolder(const char* list, const char* folder) {
        C<QWidget>(QString::fromUtf8(list))->setProperty("path", QString::fromUtf8(folder));
    }
};

TEST_F(Paths, FolderWarningComesOnceForEachChange) {
    Open();
    for (const char* list : {"dirHDir", "dirBkupPath"}) {
        Screen.Messages.clear();
        Screen.Answer(MessageAnswer::Ok);
        OpenFolder(list, "c:\\marks\\gwdata");
        OpenFolder(list, "c:\\marks\\gwdata");
        OpenFolder(list, "c:\\marks");
        Screen.Answer(MessageAnswer::Ok);
        OpenFolder(list, "c:\\GWother");
        const QString title = QByteArray(list) == "dirHDir" ? QStringLiteral("Gradewell Path Error")
                                                            : QStringLiteral("Backup Path Error");
        EXPECT_EQ(Titles(), title + u'|' + title);
        EXPECT_EQ(Screen.Messages[0].Icon, MessageIcon::Critical);
        EXPECT_EQ(Screen.Messages[0].Text, GradebookFolderWarning());
    }
    Click("cmdPrefSave");
    EXPECT_EQ(Saved(), WithLines(Base(), {{5, "\"c:\\gwother\""}, {75, "\"c:\\gwother\""}}));
}

TEST_F(Paths, OpeningWarnsOnceForEachFolderThatEarnsIt) {
    Start(WithLines(Base(), {{5, "\"c:\\marks\\gwdata\""}, {75, "\"c:\\gwother\""}}));
    Screen.Answer(MessageAnswer::Ok);
    Screen.Answer(MessageAnswer::Ok);
    Open();
    EXPECT_EQ(Titles(), QStringLiteral("Gradewell Path Error|Backup Path Error"));
    Start(WithLines(Base(), {{75, "\"c:\\gwother\""}}));
    Screen.Answer(MessageAnswer::Ok);
    Screen.Messages.clear();
    Open();
    EXPECT_EQ(Titles(), QStringLiteral("Backup Path Error"));
}

TEST_F(Paths, BlankFoldersOpenEmptyLists) {
    Start(WithLines(Base(), {{5, "\"\""}, {75, "\"\""}}));
    Open();
    EXPECT_EQ(ListPath("dirHDir"), QString());
    EXPECT_EQ(Drive("drvHDir"), QString());
    EXPECT_EQ(TextOf("lblDfltPath"), QString());
    C<QWidget>(QStringLiteral("drvHDir"))->setProperty("drive", QStringLiteral("c:"));
    EXPECT_EQ(TextOf("lblDfltPath"), ListPath("dirHDir").toLower());
    EXPECT_TRUE(ListPath("dirHDir").startsWith(QStringLiteral("c:\\")));
}

TEST_F(Paths, BlankDataFolderStaysBlankBesideABackupFolder) {
    Start(WithLines(Base(), {{5, "\"\""}}));
    Open();
    EXPECT_EQ(TextOf("lblDfltPath"), QString());
    Click("cmdPrefSave");
    EXPECT_EQ(Saved(), WithLines(Base(), {{5, "\"\""}}));
}

TEST_F(Paths, ClearEmptiesListsAndDrive) {
    Open();
    Click("cmdClrDfltPath");
    EXPECT_EQ(TextOf("lblDfltPath"), QString());
    EXPECT_EQ(ListPath("dirHDir"), QString());
    EXPECT_EQ(C<QComboBox>(QStringLiteral("drvHDir"))->currentIndex(), -1);
    EXPECT_EQ(ProgramConfig.DefaultPath, QStringLiteral("c:\\marks\\2016"));
    EXPECT_EQ(ListPath("dirBkupPath"), QStringLiteral("c:\\backup"));
}

TEST_F(Paths, VanishedStoredFolderAsksAndCancelFallsBackToTheDrive) {
    Start(WithLines(Base(), {{5, "\"c:\\gone\\2016\""}}));
    Screen.Answer(MessageAnswer::Retry);
    Screen.Answer(MessageAnswer::Cancel);
    Open();
    EXPECT_EQ(Titles(), QStringLiteral("DEFAULT PATH ERROR|DEFAULT PATH ERROR"));
    EXPECT_EQ(Screen.Messages[0].Text,
              UnreadableFolderQuestion(QStringLiteral("The DEFAULT PATH ["), QStringLiteral("c:\\gone\\2016")));
    EXPECT_EQ(Screen.Messages[0].Buttons, MessageButtons::RetryCancel);
    EXPECT_EQ(Screen.Messages[0].Icon, MessageIcon::Critical);
    EXPECT_EQ(Drive("drvHDir"), QStringLiteral("c:"));
    EXPECT_EQ(ListPath("dirHDir"), QStringLiteral("c:\\"));
    EXPECT_EQ(TextOf("lblDfltPath"), QStringLiteral("c:\\"));
    Click("cmdClrDfltPath");
    Click("cmdPrefSave");
    EXPECT_EQ(Saved(), WithLines(Base(), {{5, "\"\""}}));
}

TEST_F(Paths, RetryFindsAFolderThatIsBack) {
    Start(WithLines(Base(), {{5, "\"c:\\gone\\gw1\""}, {75, "\"c:\\lost\""}}));
    Screen.Answer(MessageAnswer::Retry, [this] { Machine.MakeFolder(QStringLiteral("c:\\gone\\gw1")); });
    Screen.Answer(MessageAnswer::Ok);
    Screen.Answer(MessageAnswer::Retry, [this] { Machine.MakeFolder(QStringLiteral("c:\\lost")); });
    Open();
    EXPECT_EQ(Titles(), QStringLiteral("DEFAULT PATH ERROR|Gradewell Path Error|DEFAULT PATH ERROR"));
    EXPECT_EQ(TextOf("lblDfltPath"), QStringLiteral("c:\\gone\\gw1"));
    EXPECT_EQ(TextOf("lblBkupPath"), QStringLiteral("c:\\lost"));
}

TEST_F(Paths, FolderThatVanishesWhileTheWindowIsOpen) {
    Open();
    Machine.Remove(QStringLiteral("c:\\other"));
    Screen.Answer(MessageAnswer::Cancel);
    OpenFolder("dirBkupPath", "c:\\other");
    EXPECT_EQ(Titles(), QStringLiteral("DEFAULT PATH ERROR"));
    EXPECT_EQ(TextOf("lblBkupPath").left(2), QStringLiteral("c:"));
    EXPECT_EQ(TextOf("lblDfltPath"), QStringLiteral("c:\\marks\\2016"));
    EXPECT_TRUE(IsOpen());
}

TEST_F(Paths, UnknownDriveOfAStoredFolderAsks) {
    Start(WithLines(Base(), {{5, "\"q:\\marks\""}}));
    Screen.Answer(MessageAnswer::Cancel);
    Open();
    EXPECT_EQ(Titles(), QStringLiteral("DEFAULT PATH ERROR"));
    EXPECT_EQ(Drive("drvHDir"), QStringLiteral("c:"));
}

TEST_F(Paths, BrowseProposesTheDummyFileInTheCurrentFolder) {
    Open();
    struct Row {
        const char* Button;
        const char* Title;
        const char* Proposed;
    };
    for (const Row& row : {Row{"cmdDataPath", "Locate Gradewell Data Folders", "c:\\marks\\2016\\Don't_Delete_Me"},
                           Row{"cmdBkupPathBrowse", "Set Gradewell Backup Path", "c:\\backup\\Don't_Delete_Me"}}) {
        Screen.Answer(MessageAnswer::Ok);
        Screen.AnswerFile(QString());
        Click(row.Button);
        EXPECT_EQ(Screen.Messages.back().Title, QString::fromUtf8(row.Title));
        EXPECT_EQ(Screen.Messages.back().Icon, MessageIcon::Information);
        const FileDialog& dialog = Screen.FileDialogs.back();
        EXPECT_EQ(dialog.DialogKind, FileDialog::Kind::Save);
        EXPECT_EQ(dialog.Title, QString::fromUtf8(row.Title));
        EXPECT_EQ(dialog.Filter, QStringLiteral("All Files (*.*)|*.*"));
        EXPECT_EQ(dialog.FileName, QString::fromUtf8(row.Proposed));
        EXPECT_FALSE(dialog.OverwritePrompt);
    }
    EXPECT_EQ(TextOf("lblDfltPath"), QStringLiteral("c:\\marks\\2016"));
}

TEST_F(Paths, BrowsedFolderGoesIntoTheRecordAtOnceAndIsWarnedAboutOnce) {
    Open();
    Screen.Answer(MessageAnswer::Ok);
    Screen.Answer(MessageAnswer::Ok);
    Screen.AnswerFile(QStringLiteral("c:\\marks\\GWDATA\\Don't_Delete_Me"));
    Click("cmdBkupPathBrowse");
    EXPECT_EQ(Titles(), QStringLiteral("Set Gradewell Backup Path|Backup Path Error"));
    EXPECT_EQ(ProgramConfig.BackupDestinationPath, QStringLiteral("c:\\marks\\gwdata"));
    EXPECT_EQ(ListPath("dirBkupPath").toLower(), QStringLiteral("c:\\marks\\gwdata"));
    EXPECT_EQ(Drive("drvBkupPath"), QStringLiteral("c:"));
    EXPECT_FALSE(Machine.Exists(QStringLiteral("c:\\marks\\gwdata\\Don't_Delete_Me")));
}

TEST_F(Paths, BrowsedFolderThatIsNotThereAsksAndReachesNoRecord) {
    Open();
    Screen.Answer(MessageAnswer::Ok);
    Screen.AnswerFile(QStringLiteral("c:\\nowhere\\Don't_Delete_Me"));
    Screen.Answer(MessageAnswer::Cancel);
    Click("cmdDataPath");
    EXPECT_EQ(Titles(), QStringLiteral("Locate Gradewell Data Folders|DEFAULT PATH ERROR"));
    EXPECT_EQ(ProgramConfig.DefaultPath, QStringLiteral("c:\\marks\\2016"));
    EXPECT_EQ(Drive("drvHDir"), QStringLiteral("c:"));
}

TEST_F(Paths, StoredFoldersThatAreNoPathsAsk) {
    for (const char* stored : {"marks", "\\\\server\\share", "c:\\photos\\1.jpg", "1:\\x"}) {
        Machine.Write(QStringLiteral("c:\\photos\\1.jpg"), "x");
        Start(WithLines(Base(), {{75, '"' + QByteArray(stored) + '"'}}));
        Screen.Messages.clear();
        Screen.Answer(MessageAnswer::Cancel);
        Open();
        EXPECT_EQ(Titles(), QStringLiteral("DEFAULT PATH ERROR")) << stored;
        EXPECT_TRUE(Screen.Messages[0].Text.contains(u'[' + QString::fromUtf8(stored) + u']')) << stored;
        EXPECT_EQ(Drive("drvBkupPath"), QStringLiteral("c:")) << stored;
        EXPECT_EQ(TextOf("lblBkupPath").left(3), QStringLiteral("c:\\")) << stored;
    }
}

TEST_F(Paths, FolderOfTheListReachesTheRecordOnSaveOnly) {
    Open();
    OpenFolder("dirHDir", "c:\\other");
    EXPECT_EQ(TextOf("lblDfltPath"), QStringLiteral("c:\\other"));
    EXPECT_EQ(ProgramConfig.DefaultPath, QStringLiteral("c:\\marks\\2016"));
}

TEST_F(Paths, DoubleClickOpensAFolder) {
    Open();
    auto* list = C<QTreeWidget>(QStringLiteral("dirHDir"));
    QTreeWidgetItem* parent = list->currentItem()->parent();
    list->scrollToItem(parent);
    const QPoint entry = list->visualItemRect(parent).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, entry);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, entry);
    EXPECT_EQ(TextOf("lblDfltPath"), QStringLiteral("c:\\marks"));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_End);
    Screen.Answer(MessageAnswer::Ok);
    QTest::keyClick(list, Qt::Key_Return); // the last of 2016 and gwdata
    EXPECT_EQ(TextOf("lblDfltPath"), QStringLiteral("c:\\marks\\gwdata"));
    EXPECT_EQ(Titles(), QStringLiteral("Gradewell Path Error"));
    EXPECT_TRUE(IsOpen());
}

TEST_F(Paths, PhotoOfAnotherKindIsRefusedButTakenIntoTheRecord) {
    Open();
    Screen.Answer(MessageAnswer::Ok);
    Screen.AnswerFile(QStringLiteral("c:\\other\\1.PNG"));
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdPhotos");
    EXPECT_EQ(Titles(), QStringLiteral("PATH TO STUDENT PHOTOGRAPHS|PHOTO FILE ERROR"));
    EXPECT_EQ(TextOf("lblMugShotPath"), QStringLiteral("c:\\photos\\"));
    EXPECT_EQ(ProgramConfig.PathToStudentPhotos, QStringLiteral("c:\\other\\1.png"));
    EXPECT_EQ(ProgramConfig.StudentPhotoExtension, QStringLiteral(".PNG"));
    EXPECT_EQ(Screen.FileDialogs[0].Title, QStringLiteral("Find Student Photographs"));
    EXPECT_EQ(Screen.FileDialogs[0].DialogKind, FileDialog::Kind::Open);
    EXPECT_EQ(Screen.FileDialogs[0].FileName, QStringLiteral("c:\\photos\\"));
    EXPECT_EQ(Screen.FileDialogs[0].Filter, QStringLiteral("JPeg (*.jpg)|*.jpg|Bit Map (*.bmp)|*.bmp"));
}

TEST_F(Paths, PhotoDialogCancelledChangesNothing) {
    Open();
    Screen.Answer(MessageAnswer::Ok);
    Screen.AnswerFile(QString());
    Click("cmdPhotos");
    EXPECT_EQ(ProgramConfig.PathToStudentPhotos, QStringLiteral("c:\\photos\\"));
    EXPECT_EQ(ProgramConfig.StudentPhotoExtension, QStringLiteral(".Jpg"));
}

} // namespace
