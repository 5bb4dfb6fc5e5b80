#include "tests/e2e/Boards.h"
#include "tests/e2e/Screen.h"

namespace {

const QString Older = QStringLiteral("GW_v11_PRG.CFG");
const QString Newer = QStringLiteral("GW_v12_PRG.CFG");

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
