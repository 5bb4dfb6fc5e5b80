#include "tests/e2e/Boards.h"

namespace {

class AdminProgram : public EachBoard {
protected:
    const QString Title = Menu + QStringLiteral(" - TRANSFER to ADMIN EDITION");

    QByteArray Unlocked() const { return Golden(Installed.Edition.Component + QStringLiteral("-unlocked.cfg")); }
};

INSTANTIATE_TEST_SUITE_P(Editions, AdminProgram, testing::Values("english", "french"), EditionOf);

TEST_P(AdminProgram, EditsTheRulesByMouseAndKeysAndSavesThemToTheByte) {
    Installed.Write(Newer, Golden(QStringLiteral("start.cfg")));
    Installed.MakeFolder(QStringLiteral("admin"));
    OpenFromMenu("alt+a", Title);
    TabTo(Title, "cboRule_CourseLength");
    Type(Title, "End");
    AwaitText(Title, "cboRule_CourseLength", "20");
    Program->Enter(Title, QStringLiteral("txtAdminTest"), QStringLiteral("eng1d1/01"));
    Type(Title, "Tab");
    AwaitText(Title, "txtAdminTest", "ENG1D1/01");
    AwaitText(Title, "lblCourseTest", "ENG1D1");
    AwaitText(Title, "lblClassTest", "01");
    AwaitText(Title, "lblGradeTest", "EN");

    Program->Enter(Title, QStringLiteral("txtRule_GSymbol(0)"), QStringLiteral("en"));
    Type(Title, "Return");
    AwaitText(Title, "lblGradeTest", "g0");
    Type(Title, "shift+Tab");
    AwaitText(Title, "lblGradeTest", "G0");

    const QString locate = QStringLiteral("Locate Gradewell Data Folders");
    Type(Title, "alt+b");
    Program->Press(locate, QStringLiteral("Return"));
    Program->ChooseFile(locate, Installed.Native(QStringLiteral("admin/x")));
    const QString chosen = Installed.Shown(QStringLiteral("admin"));
    Program->AwaitText(Title, QStringLiteral("lblAdminPath"), chosen);

    EXPECT_EQ(Installed.Read(Newer), Golden(QStringLiteral("start.cfg"))) << "nothing is stored before Save";
    Type(Title, "alt+s");
    Program->AwaitWindow(Menu);
    const QByteArray expected = Unlocked()
                                    .replace("\"c:\\admin\"", '"' + chosen.toLatin1() + '"')
                                    .replace("2,5,9,3,1,2,1,2", "2,20,9,3,1,2,1,2")
                                    .replace("\"a\",\"g0\"", "\"EN\",\"G0\"");
    EXPECT_EQ(Installed.Read(Newer).toStdString(), expected.toStdString());
    EXPECT_EQ(Installed.Read(Older).toStdString(), expected.toStdString());
    EXPECT_FALSE(Installed.Exists(QStringLiteral("admin/x")));
}

TEST_P(AdminProgram, TakesAFolderOfAnotherDriveAndWarnsOfOne) {
    if (UnderWine()) {
        GTEST_SKIP() << "the drives are those of drives.conf, which Windows does not read";
    }
    Installed.Write(Newer, Golden(QStringLiteral("start.cfg")));
    MakeDrives();
    Installed.MakeFolder(QStringLiteral("shared/Admin"));
    Installed.MakeFolder(QStringLiteral("shared/GWdata"));
    OpenFromMenu("alt+a", Title);
    AwaitText(Title, "lblAdminPath", ""); // the stored folder is gone
    TabTo(Title, "drvHDir_Admin");
    Type(Title, "g");
    AwaitText(Title, "lblAdminPath", "g:\\");
    Type(Title, "Down"); // to h:
    Program->Press(QStringLiteral("DISK ERROR"), QStringLiteral("Return"));
    AwaitText(Title, "drvHDir_Admin", "g:");

    TabTo(Title, "dirHDir_Admin");
    Type(Title, "Down", 2);
    Type(Title, "Return");
    const QString warning = QStringLiteral("Gradewell Path Error");
    Program->Press(warning, QStringLiteral("Return"));
    AwaitText(Title, "lblAdminPath", "g:\\gwdata");
    OpenRoot(Title, "dirHDir_Admin");
    AwaitText(Title, "lblAdminPath", "g:\\");
    Type(Title, "Down");
    Type(Title, "Return");
    AwaitText(Title, "lblAdminPath", "g:\\admin");
    Program->Click(Title, QStringLiteral("cmdClrAdminPath"));
    AwaitText(Title, "lblAdminPath", "");
    Type(Title, "shift+Tab", 2);
    Type(Title, "Return"); // the folder that is open there
    AwaitText(Title, "lblAdminPath", "g:\\admin");

    Program->Click(Title, QStringLiteral("cmdSaveRules"));
    Program->AwaitWindow(Menu);
    const QByteArray expected = Unlocked().replace("\"c:\\admin\"", "\"g:\\admin\"");
    EXPECT_EQ(Installed.Read(Newer).toStdString(), expected.toStdString());
}

TEST_P(AdminProgram, ConversionAndSplitFollowTheMouse) {
    Installed.Write(Newer, Golden(QStringLiteral("start.cfg")));
    OpenFromMenu("alt+a", Title);
    Program->Click(Title, QStringLiteral("optRule_GradeConv(0)"));
    AwaitChecked(Title, "optRule_GradeConv(0)");
    Program->Click(Title, QStringLiteral("lblConversion"));
    AwaitChecked(Title, "optRule_GradeConv(1)");
    Program->Click(Title, QStringLiteral("optRule_GradeConv(0)"));
    AwaitChecked(Title, "optRule_GradeConv(0)");
    Program->Click(Title, QStringLiteral("txtRule_GActual(5)"));
    AwaitChecked(Title, "optRule_GradeConv(1)");
    Program->Click(Title, QStringLiteral("optRule_GradeConv(0)"));
    Program->Click(Title, QStringLiteral("chkUseSplitChar"));
    Program->AwaitControl(Title, QStringLiteral("chkUseSplitChar"), QStringLiteral("to be cleared"),
                          [](const auto& seen) { return !seen.Checked; });
    Program->Enter(Title, QStringLiteral("txtSplitChar"), QStringLiteral("x"));
    Program->Click(Title, QStringLiteral("cmdClrAdminPath"));
    AwaitChecked(Title, "chkUseSplitChar");
    AwaitText(Title, "txtSplitChar", "X");
    Program->Click(Title, QStringLiteral("chkUseSplitChar"));
    Program->Click(Title, QStringLiteral("cmdSaveRules"));
    Program->AwaitWindow(Menu);
    const QByteArray expected = Unlocked()
                                    .replace("\"c:\\admin\"", "\"\"")
                                    .replace("2,5,9,3,1,2,1,2", "2,5,9,3,1,2,0,1")
                                    .replace("\"g5\"", "\"G5\"") // its box was left
                                    .replace("\"/\"\r\n", "\"X\"\r\n");
    EXPECT_EQ(Installed.Read(Newer).toStdString(), expected.toStdString());
}

TEST_P(AdminProgram, ABadSampleBringsOneMessageAndEscapeStoresNothing) {
    Installed.Write(Newer, Golden(QStringLiteral("start.cfg")));
    OpenFromMenu("alt+a", Title);
    Program->Enter(Title, QStringLiteral("txtAdminTest"), QStringLiteral("a,b"));
    const SeenWindow seen = Program->AwaitWindow(Title);
    ClickAt(seen.Control(QStringLiteral("cmdSaveRules")).Place.center());
    const QString error = QStringLiteral("INPUT ERROR");
    Program->Press(error, QStringLiteral("Return"));
    Program->AwaitControl(Title, QStringLiteral("txtAdminTest"), QStringLiteral("to keep the keyboard"),
                          [](const auto& box) { return box.Focused && box.Text == QStringLiteral("a,b"); });
    Type(Title, "Escape");
    Program->AwaitWindow(Menu);
    EXPECT_EQ(Installed.Read(Newer), Golden(QStringLiteral("start.cfg")));
}

} // namespace
