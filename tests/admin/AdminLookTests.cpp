#include "tests/admin/AdminWindowTest.h"
#include "tests/support/CaptionTable.h"

namespace {

TEST_F(AdminWindow, CaptionsOfBothEditions) {
    Open();
    EXPECT_EQ(ExpectCaptions(*window, "admin/captions.txt", 1), 36);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Gradewell 2016 Config - TRANSFER to ADMIN EDITION"));
    window->SpeakFrench_Admin();
    EXPECT_EQ(ExpectCaptions(*window, "admin/captions.txt", 2), 36);
    EXPECT_EQ(window->windowTitle(),
              QString::fromUtf8("Gradewell 2016 Config - Transfert vers l'édition administrative de Carnelle"));
    window->SpeakEnglish_Admin();
    EXPECT_EQ(ExpectCaptions(*window, "admin/captions.txt", 1), 36);
}

TEST_F(AdminWindow, FitsTheSmallestScreenInBothEditions) {
    Open();
    EXPECT_EQ(window->size(), QSize(800, 600));
    EXPECT_TRUE(window->isModal());
    ExpectNothingClipped(*window);
    window->SpeakFrench_Admin();
    ExpectNothingClipped(*window);
    EXPECT_EQ(window->size(), QSize(800, 600));
}

TEST_F(AdminWindow, ScreenReadersGetANameForEveryControl) {
    Open();
    ExpectAccessibleNames(*window);
    window->SpeakFrench_Admin();
    ExpectAccessibleNames(*window);
}

TEST_F(AdminWindow, TabFollowsTheEye) {
    Open();
    QStringList expected = {QStringLiteral("drvHDir_Admin"),        QStringLiteral("dirHDir_Admin"),
                            QStringLiteral("cmdAdminPath"),         QStringLiteral("cmdClrAdminPath"),
                            QStringLiteral("cboRule_CourseStart"),  QStringLiteral("cboRule_CourseLength"),
                            QStringLiteral("cboRule_SectionStart"), QStringLiteral("cboRule_SectionLength"),
                            QStringLiteral("cboRule_GradeStart"),   QStringLiteral("cboRule_GradeLength"),
                            QStringLiteral("chkUseSplitChar"),      QStringLiteral("txtSplitChar"),
                            QStringLiteral("txtAdminTest"),         QStringLiteral("optRule_GradeConv(0)")};
    for (int row = 0; row < 6; ++row) {
        expected += {QStringLiteral("txtRule_GSymbol(%1)").arg(row), QStringLiteral("txtRule_GActual(%1)").arg(row)};
    }
    expected += {QStringLiteral("cmdSaveRules"), QStringLiteral("cmdRulesCancel")};
    EXPECT_EQ(TabOrder(*window, "drvHDir_Admin"), expected);
}

TEST_F(AdminWindow, TheKeyOfClearAndCancelMovesBetweenThem) {
    Open();
    List("cboRule_CourseStart")->setFocus();
    QSet<QString> reached;
    for (int i = 0; i < 2; ++i) {
        AccessKey(*window, Qt::Key_C);
        QCoreApplication::processEvents();
        reached.insert(window->focusWidget()->objectName());
    }
    EXPECT_EQ(reached, (QSet<QString>{QStringLiteral("cmdClrAdminPath"), QStringLiteral("cmdRulesCancel")}));
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(Label("lblAdminPath"), QStringLiteral("c:\\admin\\2015"));
}

} // namespace
