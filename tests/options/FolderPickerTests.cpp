#include "options/FolderPicker.h"

#include "app/CFG_2015.h"
#include "platform/widgets/DriveList.h"
#include "platform/widgets/FolderList.h"
#include "platform/widgets/PathLabel.h"
#include "tests/support/PrintText.h"
#include "tests/support/TestFolder.h"
#include "tests/support/WindowInput.h"

namespace {

constexpr FolderPickerNames Names{"drv",      "dir",      "lblPath",   "cmdBrowse",
                                  "cmdClear", "lblDrive", "lblFolder", "lblCurrent"};

// A machine with a second drive, d:, that can be taken away.
class Picker : public testing::Test {
protected:
    Picker()
        : drives(RealSystemCalls(), DriveTable{{QLatin1Char('c'), Machine.Native(QStringLiteral("c:\\first"))},
                                               {QLatin1Char('d'), Machine.Native(QStringLiteral("c:\\second"))}}),
          Screen(drives, RealSystemCalls()) {
        for (const char* folder : {"c:\\first\\marks", "c:\\first\\gw", "c:\\second\\backup", "c:\\second\\gwnet"}) {
            Machine.MakeFolder(QString::fromUtf8(folder));
        }
        Rules.NoticeTitle = QStringLiteral("Notice");
        Rules.DialogTitle = QStringLiteral("Dialog");
        Rules.FolderRuleTitle = QStringLiteral("Rule");
    }

    void Make() {
        Made = std::make_unique<FolderPicker>(Names, Rules);
        ShowActive(*Made);
    }

    // Titles of the messages since the last call.
    QString Titles() {
        QStringList titles;
        for (const Message& message : Screen.Messages) {
            titles.append(message.Title);
        }
        Screen.Messages.clear();
        return titles.join(u'|');
    }

    void TakeAway(const char* folder) { Machine.Remove(QString::fromUtf8(folder)); }

    TestFolder Machine;

private:
    MappedVolumes drives;

protected:
    ScriptedDesktop Screen;
    FolderPickerRules Rules;
    std::unique_ptr<FolderPicker> Made;
};

TEST_F(Picker, DriveChangeOpensTheDriveAndWarnsOnce) {
    Make();
    Made->Load(QStringLiteral("c:\\marks"));
    Made->Drive->SetDrive(QStringLiteral("d:"));
    EXPECT_EQ(Made->Chosen(), QStringLiteral("d:\\"));
    Screen.Answer(MessageAnswer::Ok);
    Made->Folder->SetPathAsUser(QStringLiteral("d:\\gwnet"));
    EXPECT_EQ(Titles(), QStringLiteral("Rule"));
    Made->Drive->SetDrive(QStringLiteral("c:"));
    EXPECT_EQ(Made->Chosen(), QStringLiteral("c:\\marks"));
    Screen.Answer(MessageAnswer::Ok);
    Made->Drive->SetDrive(QStringLiteral("d:")); // its current folder is the one chosen last
    EXPECT_EQ(Made->Chosen(), QStringLiteral("d:\\gwnet"));
    EXPECT_EQ(Titles(), QStringLiteral("Rule"));
}

TEST_F(Picker, FolderOnAnotherDriveShowsThatDrive) {
    Make();
    Made->Load(QStringLiteral("c:\\marks"));
    Made->Folder->SetPathAsUser(QStringLiteral("d:\\backup"));
    EXPECT_EQ(Made->Drive->Drive(), QStringLiteral("d:"));
    EXPECT_EQ(Titles(), QString());
}

TEST_F(Picker, DriveThatIsNotReadyGoesBack) {
    struct Row {
        bool Loud;
        const char* Text;
        MessageIcon Icon;
    };
    for (const Row& row : {Row{false, "Please check Drive d: and try again!", MessageIcon::None},
                           Row{true, "Please check Drive D: and try again!", MessageIcon::Exclamation}}) {
        Rules.DriveErrorLoud = row.Loud;
        Make();
        Made->Load(QStringLiteral("c:\\marks"));
        TakeAway("c:\\second");
        Screen.Answer(MessageAnswer::Ok);
        Made->Drive->SetDrive(QStringLiteral("d:"));
        ASSERT_EQ(Screen.Messages.size(), 1U);
        EXPECT_EQ(Screen.Messages[0].Text, QString::fromUtf8(row.Text));
        EXPECT_EQ(Screen.Messages[0].Icon, row.Icon);
        EXPECT_EQ(Titles(), QStringLiteral("DISK ERROR"));
        EXPECT_EQ(Made->Drive->Drive(), QStringLiteral("c:"));
        EXPECT_EQ(Made->Chosen(), QStringLiteral("c:\\marks"));
    }
}

TEST_F(Picker, UnreadableStoredFolderIsDroppedWhereTheRulesSaySo) {
    Rules.DropUnreadable = true;
    Make();
    EXPECT_FALSE(Made->Load(QStringLiteral("c:\\gone")));
    EXPECT_EQ(Made->Chosen(), QString());
    EXPECT_EQ(Made->Folder->Path(), QString());
    EXPECT_EQ(Made->Drive->Drive(), QString());
    EXPECT_EQ(Titles(), QString());
    EXPECT_TRUE(Made->Load(QStringLiteral(" C:\\MARKS ")));
    EXPECT_EQ(Made->Chosen(), QStringLiteral("c:\\marks"));
    EXPECT_TRUE(Made->Load(QString()));
}

TEST_F(Picker, EmptyFallBackWhenNoDriveCanBeRead) {
    Rules.PathErrorTitle = QStringLiteral("Path");
    Make();
    TakeAway("c:\\first");
    Screen.Answer(MessageAnswer::Cancel);
    Made->Load(QStringLiteral("c:\\marks"));
    EXPECT_EQ(Titles(), QStringLiteral("Path"));
    EXPECT_EQ(Made->Folder->Path(), QString());
    EXPECT_EQ(Made->Chosen(), QStringLiteral("c:\\marks"));
}

TEST_F(Picker, BrowseSelectsNoDriveWhereTheRulesSaySo) {
    for (const bool clears : {true, false}) {
        Rules.BrowseClearsDrive = clears;
        Rules.PathMustExist = clears;
        Make();
        Made->Load(QStringLiteral("c:\\marks"));
        QStringList browsed;
        QObject::connect(Made.get(), &FolderPicker::Browsed,
                         [&browsed](const QString& folder) { browsed.append(folder); });
        Screen.Answer(MessageAnswer::Ok);
        Screen.AnswerFile(QStringLiteral("d:\\Backup\\Don't_Delete_Me"));
        Made->Browse();
        EXPECT_EQ(Made->Chosen(), QStringLiteral("d:\\backup"));
        EXPECT_EQ(Made->Drive->Drive(), clears ? QString() : QStringLiteral("d:"));
        EXPECT_EQ(browsed, QStringList(QStringLiteral("d:\\backup")));
        EXPECT_EQ(Screen.FileDialogs.back().PathMustExist, clears);
        EXPECT_EQ(Titles(), QStringLiteral("Notice"));
    }
}

TEST_F(Picker, ClearMayLeaveTheLists) {
    Make();
    Made->Load(QStringLiteral("c:\\marks"));
    Made->Clear();
    EXPECT_EQ(Made->Chosen(), QString());
    EXPECT_EQ(Made->Folder->Path(), QStringLiteral("c:\\marks"));
    EXPECT_EQ(Made->Drive->Drive(), QStringLiteral("c:"));
}

TEST_F(Picker, ClearedFolderWarnsAgainWhenItIsChosenAgain) {
    Rules.ClearEmptiesLists = true;
    Make();
    Screen.Answer(MessageAnswer::Ok);
    Made->Load(QStringLiteral("c:\\gw"));
    Made->Clear();
    Screen.Answer(MessageAnswer::Ok);
    Made->Folder->SetPathAsUser(QStringLiteral("c:\\gw"));
    EXPECT_EQ(Titles(), QStringLiteral("Rule|Rule"));
}

TEST_F(Picker, LongPathsAreShownWithTheirEndsAndKeptWhole) {
    Make();
    const QString longPath = QStringLiteral("c:\\") + QString(300, u'x');
    Made->Path->setText(longPath);
    EXPECT_EQ(Made->Chosen(), longPath);
    QHelpEvent asked(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
    QApplication::sendEvent(Made->Path, &asked);
    EXPECT_TRUE(QToolTip::text().contains(longPath));
    EXPECT_LT(Made->Path->minimumSizeHint().width(), 200);
    EXPECT_FALSE(Made->grab().isNull());
}

} // namespace
