#include "tests/admin/AdminWindowTest.h"
#include "tests/support/FaultyCalls.h"

#include <cerrno>

namespace {

void SetRow(frmAdmin_SU& window, int row, const char* symbol, const char* actual) {
    Find<TextBox>(window, qPrintable(QStringLiteral("txtRule_GSymbol(%1)").arg(row)))
        ->setText(QString::fromUtf8(symbol));
    Find<TextBox>(window, qPrintable(QStringLiteral("txtRule_GActual(%1)").arg(row)))
        ->setText(QString::fromUtf8(actual));
}

TEST_F(AdminWindow, SaveWithoutAChangeKeepsEveryByte) {
    machine.Write(QStringLiteral("c:\\gradewell\\GdWlPath.cfg"), "x");
    Open();
    Click("cmdSaveRules");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->result(), QDialog::Accepted);
    EXPECT_EQ(Saved(), HandWritten("admin/before.cfg"));
    EXPECT_EQ(machine.Names(QStringLiteral("c:\\gradewell")),
              (QStringList{QStringLiteral("GW_v11_PRG.CFG"), QStringLiteral("GW_v12_PRG.CFG")}));
    EXPECT_EQ(machine.Read(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG")), HandWritten("admin/before.cfg"));
}

TEST_F(AdminWindow, SaveWritesEveryEditAndNothingElse) {
    Open();
    const char* const lists[] = {"cboRule_CourseStart",   "cboRule_CourseLength", "cboRule_SectionStart",
                                 "cboRule_SectionLength", "cboRule_GradeStart",   "cboRule_GradeLength"};
    const int values[] = {2, 5, 9, 20, 6, 7};
    for (std::size_t i = 0; i < std::size(lists); ++i) {
        List(lists[i])->setCurrentIndex(values[i]);
    }
    Type("txtSplitChar", "/");
    Tab();
    Click("optRule_GradeConv(1)");
    SetRow(*window, 4, "K", "");
    Type("txtRule_GSymbol(5)", "é");
    Type("txtRule_GActual(5)", " pre");
    Get<FolderList>("dirHDir_Admin")->setProperty("path", QStringLiteral("c:\\admin\\2016"));
    AccessKey(*window, Qt::Key_S);
    QTRY_VERIFY(!window->isVisible());
    EXPECT_EQ(Saved(), HandWritten("admin/after.cfg"));
    EXPECT_EQ(machine.Read(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG")), HandWritten("admin/after.cfg"));
    Open();
    EXPECT_EQ(List("cboRule_SectionLength")->currentIndex(), 20);
    EXPECT_EQ(Box("txtRule_GActual(5)")->text(), QStringLiteral("PRE"));
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\admin\\2016"));
    Click("cmdSaveRules");
    EXPECT_EQ(Saved(), HandWritten("admin/after.cfg"));
}

TEST_F(AdminWindow, NothingIsStoredBeforeSave) {
    for (const int way : {0, 1, 2, 3}) {
        Open();
        const ProgramConfigRecord before = ProgramConfig;
        List("cboRule_CourseStart")->setCurrentIndex(9);
        Type("txtRule_GSymbol(0)", "z");
        Type("txtSplitChar", "+");
        Type("txtAdminTest", "abc");
        Tab();
        Click("cmdClrAdminPath");
        switch (way) {
        case 0:
            Click("cmdRulesCancel");
            break;
        case 1:
            QTest::keyClick(window->focusWidget(), Qt::Key_Escape);
            break;
        case 2:
            window->close();
            break;
        default:
            Get<QPushButton>("cmdRulesCancel")->setFocus();
            QTest::keyClick(window->focusWidget(), Qt::Key_Return);
        }
        EXPECT_FALSE(window->isVisible()) << way;
        EXPECT_EQ(window->result(), QDialog::Rejected) << way;
        EXPECT_EQ(ProgramConfig, before) << way;
        EXPECT_EQ(Saved(), HandWritten("admin/before.cfg")) << way;
        EXPECT_FALSE(machine.Exists(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG"))) << way;
    }
}

TEST_F(AdminWindow, AFailedSaveIsToldForBothFilesAndTheEditsStay) {
    FaultyCalls faulty;
    TestFolder other(faulty);
    other.MakeFolder(QStringLiteral("c:\\admin\\2015"));
    other.Write(QStringLiteral("c:\\gradewell\\GW_v12_PRG.CFG"), HandWritten("admin/before.cfg"));
    Open();
    List("cboRule_CourseStart")->setCurrentIndex(9);
    faulty.FailAll(FaultyCalls::Kind::Write, ENOSPC);
    other.Screen.Answer(MessageAnswer::Ok);
    other.Screen.Answer(MessageAnswer::Ok);
    Click("cmdSaveRules");
    ASSERT_EQ(other.Screen.Messages.size(), 2U);
    EXPECT_EQ(other.Screen.Messages[0].Title, QStringLiteral("GW_v11_PRG.CFG SAVE ERROR: 61"));
    EXPECT_EQ(other.Screen.Messages[1].Title, QStringLiteral("GW_v12_PRG.CFG SAVE ERROR: 61"));
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(ProgramConfig.RuleCourseStart, 9);
    EXPECT_EQ(other.Read(QStringLiteral("c:\\gradewell\\GW_v12_PRG.CFG")), HandWritten("admin/before.cfg"));
    window.reset();
}

TEST_F(AdminWindow, EscapeLeavesABadTextWithoutACheck) {
    Open();
    Type("txtSplitChar", ",");
    QTest::keyClick(window->focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(machine.Screen.Messages.empty());
}

TEST_F(AdminWindow, ValuesThatNoListOffersAreKeptUntilTheUserChooses) {
    Start("admin/beyond.cfg");
    Open();
    for (const char* name : {"cboRule_CourseStart", "cboRule_CourseLength", "cboRule_SectionStart",
                             "cboRule_GradeStart", "cboRule_GradeLength"}) {
        EXPECT_EQ(List(name)->currentIndex(), 0) << name;
    }
    Click("cmdSaveRules");
    EXPECT_EQ(Saved(), HandWritten("admin/beyond.cfg"));
    Open();
    List("cboRule_CourseLength")->setCurrentIndex(4);
    Click("cmdSaveRules");
    EXPECT_EQ(Saved(), HandWritten("admin/beyond_after.cfg"));
    EXPECT_EQ(ProgramConfig.RuleCourseLength, 4);
}

TEST_F(AdminWindow, AZeroThatTheUserPicksIsStored) {
    Start("admin/beyond.cfg");
    Open();
    QTest::keyClick(List("cboRule_CourseStart"), Qt::Key_Down);
    QTest::keyClick(List("cboRule_CourseStart"), Qt::Key_Up);
    Click("cmdSaveRules");
    EXPECT_EQ(ProgramConfig.RuleCourseStart, 0);
    EXPECT_EQ(ProgramConfig.RuleSectionStart, 21);
}

TEST_F(AdminWindow, LongStoredTextsSurvive) {
    const QString text(300, QLatin1Char('x'));
    ProgramConfig.RuleGSymbol[3] = text;
    ProgramConfig.RuleGActual[3] = text;
    ProgramConfig.AECourseCodeSplitCharacter = text;
    Open();
    Click("cmdSaveRules");
    EXPECT_EQ(ProgramConfig.RuleGSymbol[3], text);
    EXPECT_EQ(ProgramConfig.RuleGActual[3], text);
    EXPECT_EQ(ProgramConfig.AECourseCodeSplitCharacter, text);
}

} // namespace
