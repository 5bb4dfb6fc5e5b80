#include "options/FolderRule.h"
#include "options/PathTexts.h"

#include <gtest/gtest.h>

namespace {

struct RuleCase {
    const char* Path;
    bool Points;
};

class FolderRule : public testing::TestWithParam<RuleCase> {};

TEST_P(FolderRule, LooksAtTheLastFolderOnly) {
    EXPECT_EQ(PointsIntoGradebookFolder(QString::fromUtf8(GetParam().Path)), GetParam().Points) << GetParam().Path;
}

INSTANTIATE_TEST_SUITE_P(Paths, FolderRule,
                         testing::Values(RuleCase{"c:\\marks\\gwdata", true}, RuleCase{"c:\\marks\\GWdata", true},
                                         RuleCase{"c:\\marks\\Gw", true}, RuleCase{"c:\\gw", true},
                                         RuleCase{"c:\\marks\\g", false}, RuleCase{"c:\\marks\\g w", false},
                                         RuleCase{"c:\\gwdata\\marks", false}, RuleCase{"c:\\gwdata\\", false},
                                         RuleCase{"c:\\", false}, RuleCase{"\\gw", false}, RuleCase{"x\\gw", true},
                                         RuleCase{"gwdata", false}, RuleCase{"", false}, RuleCase{"\\", false},
                                         RuleCase{"c:\\marks\\agw", false}));

TEST(FolderTexts, WarningNamesTheRule) {
    EXPECT_EQ(
        GradebookFolderWarning(),
        QStringLiteral("The current path points to a folder that begins with 'GW' which will cause problems for "
                       "Gradewell users.\n\nPlease select another path which does not 'point' inside a folder that "
                       "begins with 'GW'."));
}

TEST(FolderTexts, QuestionNamesThePath) {
    EXPECT_EQ(
        UnreadableFolderQuestion(QStringLiteral("The DEFAULT PATH ["), QStringLiteral("a:\\x")),
        QStringLiteral("The DEFAULT PATH [a:\\x] to your FILES is invalid.\n\nIf these files are on a floppy disk, "
                       "please insert the disk and try again.\n\nIf this path is to your hard drive, click on "
                       "'Cancel'; then, Reset or Clear the path."));
}

struct NameCase {
    const char* From;
    const char* To;
};

TEST(FolderTexts, DummyFileStandsInTheFolder) {
    for (const NameCase& row : {NameCase{"c:\\marks", "c:\\marks\\Don't_Delete_Me"},
                                NameCase{"c:\\", "c:\\Don't_Delete_Me"}, NameCase{"", "\\Don't_Delete_Me"}}) {
        EXPECT_EQ(DummyFileIn(QString::fromUtf8(row.From)), QString::fromUtf8(row.To)) << row.From;
    }
}

TEST(FolderTexts, PickedFolderIsCutAtTheLastBackslash) {
    for (const NameCase& row :
         {NameCase{"c:\\Marks\\2016\\Don't_Delete_Me", "c:\\Marks\\2016"}, NameCase{"c:\\Don't_Delete_Me", "c:\\"},
          NameCase{"Don't_Delete_Me", ""}, NameCase{"", ""}, NameCase{"c:\\marks\\", "c:\\marks"},
          NameCase{"\\a\\x", "\\a"}, NameCase{"c:\\a:\\x", "c:\\a:"}}) {
        EXPECT_EQ(PickedFolder(QString::fromUtf8(row.From)), QString::fromUtf8(row.To)) << row.From;
    }
}

TEST(PathTexts, DataNoticeNamesTheProduct) {
    EXPECT_EQ(
        DataFolderNotice(QStringLiteral("Carnelle")),
        QStringLiteral("Use the 'Save in' drop down in the following dialog box to set the path to Carnelle data "
                       "folders.\n\nPlease: \n   -> Do NOT click inside a folder that begins with 'GW'.\n   -> Do NOT "
                       "delete the 'Don't_Delete_Me' file name.\n\nClick on Save when you're in the right 'place'.\n"));
}

TEST(FolderTexts, ReportFolderNotice) {
    EXPECT_EQ(
        HtmlFolderNotice(),
        QStringLiteral("Use the 'Save in' drop down in the following dialog box to set the path to the folder where "
                       "HTML Reports are to be saved.\n\nPlease do NOT delete the 'Don't_Delete_Me' file "
                       "name.\n\nClick on Save when you're in the right 'place'."));
}

TEST(FolderTexts, PhotoNoticeHasItsBlankBeforeTheLineFeeds) {
    const Message notice = PhotoNotice();
    EXPECT_EQ(notice.Title, QStringLiteral("PATH TO STUDENT PHOTOGRAPHS"));
    EXPECT_EQ(notice.Icon, MessageIcon::Information);
    EXPECT_EQ(notice.Buttons, MessageButtons::Ok);
    EXPECT_EQ(notice.Text,
              QStringLiteral("Please use the 'Look in' list in the next dialog box to find the path to the photographs "
                             "of your students. You're looking for files named using Student Numbers with 'BMP' or "
                             "'JPG' at the end. \n\nTo complete the process, click on any one of these files to place "
                             "its name in the 'File Name' box and then click on 'Open'."));
}

struct PhotoCase {
    const char* File;
    const char* Folder;
    const char* Extension;
    bool IsValid;
};

TEST(Photos, KeepFolderInSmallLettersAndExtensionAsTyped) {
    for (const PhotoCase& row :
         {PhotoCase{"c:\\Photos\\123.jpg", "c:\\photos\\", ".jpg", true},
          PhotoCase{"c:\\Photos\\123.JpG", "c:\\photos\\", ".JpG", true},
          PhotoCase{"c:\\123.BMP", "c:\\", ".BMP", true}, PhotoCase{"c:\\P\\123.png", "c:\\p\\123.png", ".png", false},
          PhotoCase{"c:\\P\\123.jpeg", "c:\\p\\123.jpeg", "jpeg", false}, PhotoCase{"x", "x", "x", false}}) {
        const PhotoChoice choice = ChoosePhoto(QString::fromUtf8(row.File));
        EXPECT_EQ(choice.Folder, QString::fromUtf8(row.Folder)) << row.File;
        EXPECT_EQ(choice.Extension, QString::fromUtf8(row.Extension)) << row.File;
        EXPECT_EQ(choice.IsValid, row.IsValid) << row.File;
    }
}

TEST(Photos, RefusalNamesFileAndExtension) {
    const Message refusal = InvalidPhoto(QStringLiteral("C:\\P\\1.png"), QStringLiteral(".png"));
    EXPECT_EQ(refusal.Title, QStringLiteral("PHOTO FILE ERROR"));
    EXPECT_EQ(refusal.Text, QStringLiteral("Invalid Path (C:\\P\\1.png) or Extension (.png) to student photo files."));
    EXPECT_EQ(refusal.Icon, MessageIcon::None);
}

} // namespace
