#include "tests/options/SetupFixture.h"

namespace {

using SetupWindow = SetupTest;

TEST_F(SetupWindow, HasItsSizesWhenItOpens) {
    Open();
    EXPECT_EQ(Window->size(), QSize(800, 600));
    EXPECT_TRUE(Window->isModal());
    for (int panel = 0; panel <= 6; ++panel) {
        ShowPanel(panel);
        QCoreApplication::processEvents();
        EXPECT_EQ(C<QWidget>(QStringLiteral("p3dSetup(%1)").arg(panel))->geometry(), QRect(8, 8, 609, 557)) << panel;
    }
    EXPECT_EQ(C<QWidget>(QStringLiteral("fraClassPath"))->height(), 97);
    EXPECT_EQ(C<QWidget>(QStringLiteral("fraBackupPath"))->height(), 97);
}

TEST_F(SetupWindow, LargerWindowGivesPanelsAndFoldersMoreRoom) {
    Open();
    Window->resize(1000, 800);
    QCoreApplication::processEvents();
    EXPECT_EQ(C<QWidget>(QStringLiteral("p3dSetup(0)"))->size(), QSize(809, 757));
    EXPECT_EQ(C<QWidget>(QStringLiteral("fraClassPath"))->height(), 197);
}

TEST_F(SetupWindow, ShowsOnePanelWithItsButtonInBold) {
    Open();
    for (const int panel : {0, 3, 6, 1, 1, 5, 2, 4, 0}) {
        ShowPanel(panel);
        for (int i = 0; i <= 6; ++i) {
            const auto* button = C<QPushButton>(QStringLiteral("cmdSetup(%1)").arg(i));
            EXPECT_EQ(C<QWidget>(QStringLiteral("p3dSetup(%1)").arg(i))->isVisible(), i == panel)
                << i << " of " << panel;
            EXPECT_EQ(button->font().bold(), i == panel) << i << " of " << panel;
            EXPECT_EQ(button->isChecked(), i == panel) << i << " of " << panel;
            EXPECT_TRUE(button->isEnabled());
        }
    }
}

TEST_F(SetupWindow, EachOpeningStartsOnTheFirstPanel) {
    OpenPanel(4);
    Open();
    EXPECT_TRUE(C<QWidget>(QStringLiteral("p3dSetup(0)"))->isVisible());
}

TEST_F(SetupWindow, ShowsTheSettings) {
    Open();
    EXPECT_EQ(TextOf("lblDfltPath"), QStringLiteral("c:\\marks\\2016"));
    EXPECT_EQ(C<QWidget>(QStringLiteral("dirHDir"))->property("path").toString(), QStringLiteral("c:\\marks\\2016"));
    EXPECT_EQ(C<QWidget>(QStringLiteral("drvHDir"))->property("drive").toString(), QStringLiteral("c:"));
    EXPECT_EQ(TextOf("lblBkupPath"), QStringLiteral("c:\\backup"));
    EXPECT_EQ(TextOf("lblMugShotPath"), QStringLiteral("c:\\photos\\"));
    EXPECT_EQ(C<QLineEdit>(QStringLiteral("txtSMTP"))->text(), QStringLiteral("mail.board.example"));
    EXPECT_TRUE(C<QRadioButton>(QStringLiteral("optThickLine(1)"))->isChecked());
    EXPECT_FALSE(C<QCheckBox>(QStringLiteral("chkHCDialog"))->isChecked());
    EXPECT_TRUE(C<QRadioButton>(QStringLiteral("optDFormat(4)"))->isChecked());
    EXPECT_TRUE(C<QRadioButton>(QStringLiteral("optBCADflt(1)"))->isChecked());
    EXPECT_EQ(TextOf("lblHTML_Path"), QStringLiteral("c:\\html"));
    EXPECT_EQ(TextOf("lblHTML_FileNameExample"), QStringLiteral("S1-CourseCode_StudentID.htm"));
    const char* const dates[] = {"2016 03 07", "2016/3/7", "3/7/2016", "7/3/2016", "Mar. 7, 2016", "7 Mar. 2016"};
    for (int code = 1; code <= 6; ++code) {
        EXPECT_EQ(C<QRadioButton>(QStringLiteral("optDFormat(%1)").arg(code))->text(),
                  QString::fromUtf8(dates[code - 1]));
    }
}

// The ways to leave a text box whose text is refused: the message comes once, the focus stays, nothing else happens.
struct Leaving {
    const char* Name;
    std::function<void(QWidget&, QWidget&)> Try; ///< window, box
};

class RefusedText : public SetupTest, public testing::WithParamInterface<Leaving> {};

TEST_P(RefusedText, KeepsTheFocusAndSavesNothing) {
    OpenPanel(2);
    Type(QStringLiteral("txtSMTP"), QStringLiteral("a,b"));
    Screen.Answer(MessageAnswer::Ok);
    auto* box = C<QLineEdit>(QStringLiteral("txtSMTP"));
    GetParam().Try(*Window, *box);
    QCoreApplication::processEvents();
    EXPECT_EQ(Titles(), QStringLiteral("INPUT ERROR"));
    EXPECT_TRUE(box->hasFocus());
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(C<QWidget>(QStringLiteral("p3dSetup(2)"))->isVisible());
    EXPECT_EQ(ProgramConfig.SMTPHostName, QStringLiteral("mail.board.example"));
    EXPECT_FALSE(Machine.Exists(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG")));
}

void ClickOn(QWidget& window, const char* button) {
    QTest::mouseClick(Find<QAbstractButton>(window, button), Qt::LeftButton);
}

INSTANTIATE_TEST_SUITE_P(
    Ways, RefusedText,
    testing::Values(Leaving{"Tab", [](QWidget&, QWidget& box) { QTest::keyClick(&box, Qt::Key_Tab); }},
                    Leaving{"Backtab", [](QWidget&, QWidget& box) { QTest::keyClick(&box, Qt::Key_Backtab); }},
                    Leaving{"EnterKey", [](QWidget&, QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); }},
                    Leaving{"SaveClicked", [](QWidget& window, QWidget&) { ClickOn(window, "cmdPrefSave"); }},
                    Leaving{"SaveByAccessKey", [](QWidget& window, QWidget&) { AccessKey(window, Qt::Key_S); }},
                    Leaving{"CancelClicked", [](QWidget& window, QWidget&) { ClickOn(window, "cmdPrefCancel"); }},
                    Leaving{"PanelClicked", [](QWidget& window, QWidget&) { ClickOn(window, "cmdSetup(4)"); }}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST_F(SetupWindow, GoodTextIsTakenBySaveByAccessKey) {
    OpenPanel(2);
    Type(QStringLiteral("txtSMTP"), QStringLiteral(" smtp "));
    AccessKey(*Window, Qt::Key_S);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !IsOpen(); }));
    EXPECT_EQ(Saved(), WithLines(Base(), {{68, "\"smtp\""}}));
}

TEST_F(SetupWindow, AtSignIsWarnedAboutOnce) {
    OpenPanel(2);
    Screen.Answer(MessageAnswer::Ok);
    Enter(QStringLiteral("txtSMTP"), QStringLiteral("me@school"));
    EXPECT_EQ(Titles(), QStringLiteral("SMTP ERROR"));
    EXPECT_EQ(Screen.Messages[0].Text,
              QStringLiteral("Warning! The 'at' symbol (@) is not usually part of this address."));
    EXPECT_FALSE(C<QLineEdit>(QStringLiteral("txtSMTP"))->hasFocus());
    Click("cmdPrefSave");
    EXPECT_EQ(Saved(), WithLines(Base(), {{68, "\"me@school\""}}));
}

TEST_F(SetupWindow, EnterInATextBoxMovesOn) {
    OpenPanel(5);
    Type(QStringLiteral("txtHTML_School"), QStringLiteral("X"));
    QTest::keyClick(C<QLineEdit>(QStringLiteral("txtHTML_School")), Qt::Key_Return);
    EXPECT_TRUE(C<QLineEdit>(QStringLiteral("txtHTML_File_Sep1"))->hasFocus());
    EXPECT_EQ(C<QLineEdit>(QStringLiteral("txtHTML_File_Sep1"))->selectedText(), QStringLiteral("-"));
    EXPECT_TRUE(IsOpen());
}

TEST_F(SetupWindow, EnterPressesTheButtonThatHasTheFocusOnly) {
    Open();
    C<QWidget>(QStringLiteral("cboSYSM"))->setFocus();
    QTest::keyClick(Window.get(), Qt::Key_Return);
    EXPECT_TRUE(IsOpen());
    auto* panel = C<QPushButton>(QStringLiteral("cmdSetup(3)"));
    panel->setFocus();
    QTest::keyClick(panel, Qt::Key_Return);
    EXPECT_TRUE(C<QWidget>(QStringLiteral("p3dSetup(3)"))->isVisible());
}

// Cancel, Escape and the close button leave without a check and write nothing.
struct Cancelling {
    const char* Name;
    std::function<void(QWidget&)> Do;
};

class Cancelled : public SetupTest, public testing::WithParamInterface<Cancelling> {};

TEST_P(Cancelled, WritesNothingAndKeepsOnlyWhatPanelsStoredAtOnce) {
    Open();
    C<QWidget>(QStringLiteral("dirBkupPath"))->setProperty("path", QStringLiteral("c:\\other"));
    Screen.Answer(MessageAnswer::Ok);
    Screen.AnswerFile(QStringLiteral("c:\\other\\Don't_Delete_Me"));
    Click("cmdDataPath");
    Click("cmdMugClear");
    ShowPanel(1);
    Click("optDFormat(6)");
    ShowPanel(3);
    Click("optBCADflt(0)");
    Choose(QStringLiteral("cboBCACode(1)"), QStringLiteral("B"));
    Enter(QStringLiteral("txtBCADesc(1)"), QStringLiteral("Tardy"));
    ShowPanel(4);
    Click("optThickLine(9)");
    ShowPanel(5);
    Enter(QStringLiteral("txtHTML_File_Sep1"), QStringLiteral("~"));
    Click("cmdHTML_Clear");
    ShowPanel(2);
    if (QByteArray(GetParam().Name) != "Button") {
        Type(QStringLiteral("txtSMTP"), QStringLiteral("refused,text"));
    }
    GetParam().Do(*Window);
    QCoreApplication::processEvents();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Window->result(), QDialog::Rejected);
    EXPECT_EQ(Screen.Messages.size(), 1U);
    EXPECT_FALSE(Machine.Exists(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG")));

    SaveProgramConfig(); // as Exit does
    EXPECT_EQ(
        Saved(),
        WithLines(Base(),
                  {{5, "\"c:\\other\""}, {18, "\"Tardy\",66"}, {65, "\"\",\"\""}, {71, "\"S1\",\"~\",\"_\",3,7"}}));
}

INSTANTIATE_TEST_SUITE_P(
    Ways, Cancelled,
    testing::Values(Cancelling{"Button", [](QWidget& window) { ClickOn(window, "cmdPrefCancel"); }},
                    Cancelling{"Escape",
                               [](QWidget& window) { QTest::keyClick(window.focusWidget(), Qt::Key_Escape); }},
                    Cancelling{"CloseButton", [](QWidget& window) { window.close(); }}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST_F(SetupWindow, SharedAccessKeysMoveBetweenTheirButtons) {
    struct Row {
        Edition InEdition;
        Qt::Key Key;
        QStringList Buttons;
    };
    const QStringList saves{QStringLiteral("cmdPrefSave"), QStringLiteral("cmdSaveScheme")};
    for (const Row& row :
         {Row{Edition::English, Qt::Key_S, saves},
          Row{Edition::English, Qt::Key_C, {QStringLiteral("cmdClearScheme"), QStringLiteral("cmdPrefCancel")}},
          Row{Edition::French, Qt::Key_E, saves}}) {
        Start(Base(), row.InEdition);
        OpenPanel(6);
        QStringList reached;
        for (int press = 0; press < 4; ++press) {
            AccessKey(*Window, row.Key);
            reached.append(Window->focusWidget()->objectName());
        }
        EXPECT_NE(reached[0], reached[1]);
        EXPECT_EQ(reached[0], reached[2]);
        EXPECT_EQ(reached[1], reached[3]);
        reached.removeDuplicates();
        reached.sort();
        EXPECT_EQ(reached, row.Buttons);
    }
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(C<QLineEdit>(QStringLiteral("txtABCChr(0)"))->text(), QStringLiteral("F"));
}

TEST_F(SetupWindow, CancelRebuildsTheDatePatterns) {
    ProgramConfig.TwoDigitYear = 1;
    Open();
    Click("cmdPrefCancel");
    EXPECT_EQ(DatePatterns[1], QStringLiteral("yy mm dd"));
    Open();
    ProgramConfig.TwoDigitYear = 0;
    Click("cmdPrefSave");
    EXPECT_EQ(DatePatterns[1], QStringLiteral("yyyy mm dd"));
}

TEST_F(SetupWindow, WordProcessorFinderStoresNothing) {
    Open();
    const ProgramConfigRecord before = ProgramConfig;
    for (const char* chosen : {"", "c:\\office\\word.exe"}) {
        Screen.Answer(MessageAnswer::Ok);
        Screen.AnswerFile(QString::fromUtf8(chosen));
        EXPECT_TRUE(QMetaObject::invokeMethod(Window.get(), "FindWordProcessor"));
    }
    EXPECT_EQ(Screen.Messages[0].Title, QStringLiteral("PATH TO WORD PROCESSOR"));
    EXPECT_EQ(Screen.FileDialogs[0].Title, QStringLiteral("Find a Word Processor"));
    EXPECT_EQ(Screen.FileDialogs[0].Filter, QStringLiteral("Program (*.exe)|*.exe"));
    EXPECT_TRUE(Screen.FileDialogs[0].FileMustExist);
    EXPECT_EQ(ProgramConfig, before);
}

} // namespace
