#include "tests/support/CaptionTable.h"
#include "tests/transfer/TransferWindowTest.h"
#include "transfer/TransferTexts.h"

namespace {

QStringList Entries(const QComboBox& list) {
    QStringList entries;
    for (int i = 0; i < list.count(); ++i) {
        entries.append(list.itemText(i));
    }
    return entries;
}

TEST_F(TransferWindow, CaptionsOfBothEditions) {
    OpenWith(HandWritten("transfer/windsor.cfg"));
    EXPECT_EQ(ExpectCaptions(*window, "transfer/captions.txt", 1), 15);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Gradewell 2016 Config - TRANSFER PROGRAM"));
    EXPECT_EQ(Entries(*List("cboBoard")),
              (QStringList{QStringLiteral("Elementary - Public"), QStringLiteral("Elementary - Catholic"),
                           QStringLiteral("Secondary - Public"), QStringLiteral("Secondary - Catholic")}));
    window->SpeakFrench_GWT();
    EXPECT_EQ(ExpectCaptions(*window, "transfer/captions.txt", 2), 15);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Gradewell 2016 Config - Logiciel de transfer pour Carnelle"));
    EXPECT_EQ(Entries(*List("cboBoard")),
              (QStringList{QString::fromUtf8("Élémentaire - Publique"), QString::fromUtf8("Élémentaire - Catholique"),
                           QStringLiteral("Secondaire - Publique"), QStringLiteral("Secondaire - Catholique")}));
    EXPECT_EQ(Shown(), "Windsor-Harts / Secondaire - Publique, on, habits"); // the choice stays
}

TEST_F(TransferWindow, TheFrenchCaptionsNameTheirOwnFile) {
    OpenWith(HandWritten("transfer/secondary.cfg"));
    window->SpeakFrench_GWT();
    Click("cmdSaveRules");
    EXPECT_EQ(Saved(), HandWritten("transfer/secondary.cfg"));
    EXPECT_TRUE(machine.Read(QStringLiteral("c:\\gradewell\\CNT9_PRG.CFG"))
                    .endsWith("[SIS Name]\r\n\"Trillium : Secondaire - Catholique\"\r\n"));
}

TEST(TransferTexts, TheFrenchBrowseBox) {
    EXPECT_EQ(ReportBrowseTitle(CaptionLanguage::French),
              QString::fromUtf8("L'emplacement des fichiers de données de Carnelle"));
    EXPECT_EQ(
        ReportBrowseText(CaptionLanguage::French),
        QString::fromUtf8("Utilisez l'option « Enregistrer dans » au menu déroulant dans la boîte de dialogue pour "
                          "configurer la chemination pour le dossier de bulletins scolaires.\n\nVeuillez ne PAS "
                          "supprimer le nom du fichier « Don't_Delete_Me ».\n\nCliquez « Enregister » dès que "
                          "vous auriez fini."));
}

TEST_F(TransferWindow, FitsTheSmallestScreenInBothEditions) {
    for (const char* golden : {"transfer/windsor.cfg", "transfer/secondary.cfg"}) {
        OpenWith(HandWritten(golden));
        EXPECT_EQ(window->size(), QSize(800, 600));
        EXPECT_TRUE(window->isModal());
        ExpectNothingClipped(*window);
        window->SpeakFrench_GWT();
        ExpectNothingClipped(*window);
        EXPECT_EQ(window->size(), QSize(800, 600));
    }
}

TEST_F(TransferWindow, FramesAndLockStandAtTheirPlaces) {
    OpenWith(HandWritten("transfer/windsor.cfg"));
    for (const char* name : {"fraSetupBoard", "fraWH_WorkHabits"}) {
        EXPECT_EQ(Get<QWidget>(name)->geometry(), QRect(16, 120, 569, 65)) << name;
    }
    for (const char* name : {"imgLocked", "imgUnlocked"}) {
        EXPECT_EQ(Get<QWidget>(name)->pos(), QPoint(24, 200)) << name;
    }
}

TEST_F(TransferWindow, ScreenReadersGetANameForEveryControl) {
    OpenWith(HandWritten("transfer/windsor.cfg"));
    ExpectAccessibleNames(*window);
    window->SpeakFrench_GWT();
    ExpectAccessibleNames(*window);
}

TEST_F(TransferWindow, TabFollowsTheEye) {
    OpenWith(HandWritten("transfer/secondary.cfg"));
    EXPECT_EQ(
        TabOrder(*window, "drvHDir"),
        (QStringList{QStringLiteral("drvHDir"), QStringLiteral("dirHDir"), QStringLiteral("cmdGWT_Browse"),
                     QStringLiteral("cmdClrPath"), QStringLiteral("cboSIS"), QStringLiteral("cboBoard"),
                     QStringLiteral("imgLocked"), QStringLiteral("cmdSaveRules"), QStringLiteral("cmdRulesCancel")}));
    OpenWith(HandWritten("transfer/windsor.cfg"));
    EXPECT_EQ(TabOrder(*window, "cboSIS").mid(0, 4),
              (QStringList{QStringLiteral("cboSIS"), QStringLiteral("cmdWH_WorkHabits"), QStringLiteral("imgUnlocked"),
                           QStringLiteral("cmdSaveRules")}));
}

TEST_F(TransferWindow, EnterWorksAButtonAndNothingElse) {
    OpenWith(HandWritten("transfer/secondary.cfg"));
    List("cboSIS")->setFocus();
    QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(Label("lblReportPath").isEmpty());
    Get<QPushButton>("cmdClrPath")->setFocus();
    QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(Label("lblReportPath").isEmpty());
}

} // namespace
