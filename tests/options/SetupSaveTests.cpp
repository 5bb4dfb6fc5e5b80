#include "tests/options/SetupFixture.h"

namespace {

using SetupSave = SetupTest;

TEST_F(SetupSave, SavingWithoutAChangeGivesTheSameBytes) {
    Open();
    Click("cmdPrefSave");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Window->result(), QDialog::Accepted);
    EXPECT_EQ(Saved(), Base());
    EXPECT_EQ(Titles(), QString());
}

// What was pressed while the window was saving reaches it when it has gone.
TEST_F(SetupSave, PressesThatComeTooLateDoNothing) {
    Open();
    Click("cmdPrefSave");
    Machine.Remove(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG"));
    auto* save = C<QPushButton>(QStringLiteral("cmdPrefSave"));
    QTest::keyClick(save, Qt::Key_Space);
    QTest::keyClick(save, Qt::Key_Return);
    QTest::mouseClick(save, Qt::LeftButton);
    EXPECT_FALSE(Machine.Exists(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG")));
}

TEST_F(SetupSave, SavingDeletesThePathFile) {
    Machine.Write(QStringLiteral("c:\\gradewell\\GdWlPath.cfg"), "x");
    Open();
    Click("cmdPrefSave");
    EXPECT_FALSE(Machine.Exists(QStringLiteral("c:\\gradewell\\GdWlPath.cfg")));
}

TEST_F(SetupSave, StartMonthIsAlwaysSavedAsOne) {
    Start(WithLines(Base(), {{8, " 9 "}}));
    ProgramConfig.SchoolYearStartMonth = 9;
    ProgramConfig.SchoolYearSecondWord = 9;
    Open();
    EXPECT_EQ(C<QComboBox>(QStringLiteral("cboSYSM"))->currentIndex(), -1);
    Click("cmdPrefSave");
    EXPECT_EQ(Saved(), Base());
    EXPECT_EQ(ProgramConfig.SchoolYearSecondWord, 1);
}

TEST_F(SetupSave, MonthListHoldsItsOneEntry) {
    Open();
    EXPECT_EQ(C<QComboBox>(QStringLiteral("cboSYSM"))->count(), 1);
    EXPECT_EQ(C<QComboBox>(QStringLiteral("cboSYSM"))->currentText(), QStringLiteral("January"));
}

struct Change {
    const char* Name;
    int Panel;
    std::function<void(SetupTest&)> Make;
    Lines Changed;
};

class OneChange : public SetupTest, public testing::WithParamInterface<Change> {};

std::function<void(SetupTest&)> Clicking(const char* button) {
    return [button](SetupTest& test) { test.Click(button); };
}

std::function<void(SetupTest&)> Entering(const char* box, const char* text) {
    return [box, text](SetupTest& test) { test.Enter(QString::fromUtf8(box), QString::fromUtf8(text)); };
}

std::function<void(SetupTest&)> Choosing(const char* list, const char* entry) {
    return [list, entry](SetupTest& test) { test.Choose(QString::fromUtf8(list), QString::fromUtf8(entry)); };
}

std::function<void(SetupTest&)> Opening(const char* list, const char* folder) {
    return [list, folder](SetupTest& test) {
        Find<QWidget>(*test.Window, list)->setProperty("path", QString::fromUtf8(folder));
    };
}

std::function<void(SetupTest&)> Browsing(const char* button, const char* answer) {
    return [button, answer](SetupTest& test) {
        test.Screen.Answer(MessageAnswer::Ok);
        test.Screen.AnswerFile(QString::fromUtf8(answer));
        test.Click(button);
    };
}

std::function<void(SetupTest&)> PickingFont(const char* font) {
    return [font](SetupTest& test) {
        test.Screen.AnswerFont(QString::fromUtf8(font));
        test.Click("cmdBCAFont");
    };
}

TEST_P(OneChange, ChangesItsOwnBytesOnly) {
    OpenPanel(GetParam().Panel);
    GetParam().Make(*this);
    Click("cmdPrefSave");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Saved(), WithLines(Base(), GetParam().Changed));
}

INSTANTIATE_TEST_SUITE_P(
    Panels, OneChange,
    testing::Values(
        Change{"DataFolderInTheList", 0, Opening("dirHDir", "c:\\other"), {{5, "\"c:\\other\""}}},
        Change{"DataFolderIsKeptInSmallLetters", 0, Opening("dirHDir", "C:\\OTHER"), {{5, "\"c:\\other\""}}},
        Change{"DataFolderBrowsed", 0, Browsing("cmdDataPath", "c:\\other\\Don't_Delete_Me"), {{5, "\"c:\\other\""}}},
        Change{"DataFolderRoot", 0, Browsing("cmdDataPath", "c:\\Don't_Delete_Me"), {{5, "\"c:\\\""}}},
        Change{"DataFolderCleared", 0, Clicking("cmdClrDfltPath"), {{5, "\"\""}}},
        Change{"BackupFolderInTheList", 0, Opening("dirBkupPath", "c:\\other"), {{75, "\"c:\\other\""}}},
        Change{"BackupFolderBrowsed", 0, Browsing("cmdBkupPathBrowse", "c:\\other\\x"), {{75, "\"c:\\other\""}}},
        Change{"BackupFolderCleared", 0, Clicking("cmdBkupPathClear"), {{75, "\"\""}}},
        Change{"PhotosBrowsed", 0, Browsing("cmdPhotos", "C:\\Other\\1.BmP"), {{65, "\"c:\\other\\\",\".BmP\""}}},
        Change{"PhotosCleared", 0, Clicking("cmdMugClear"), {{65, "\"\",\"\""}}},
        Change{"DateFormat", 1, Clicking("optDFormat(6)"), {{34, " 6 "}}},
        Change{"MailServerTrimmed", 2, Entering("txtSMTP", "  smtp.example "), {{68, "\"smtp.example\""}}},
        Change{"MailServerOutsideTheCodePage", 2, Entering("txtSMTP", "sm\xD0\xB6tp"), {{68, "\"sm?tp\""}}},
        Change{"DefaultForm", 3, Clicking("optBCADflt(0)"), {{13, " 0 "}, {14, " 0 "}}},
        Change{"Font", 3, PickingFont("Courier"), {{15, "\"Courier\""}}},
        Change{"FontDialogCancelled", 3, PickingFont(""), {}},
        Change{"FontCleared",
               3,
               Clicking("cmdBCAClear"),
               {{13, " 0 "}, {14, " 0 "}, {15, "\"\""}, {17, "\"\",0"}, {18, "\"\",0"}, {19, "\"\",0"}}},
        Change{"CodeEnter", 3, Choosing("cboBCACode(0)", "[Enter]"), {{17, "\"Absent\",13"}}},
        Change{"CodeLetter", 3, Choosing("cboBCACode(1)", "Z"), {{18, "\"Late\",90"}}},
        Change{"CodeNone", 3, Choosing("cboBCACode(2)", "[None]"), {{19, "\"\",0"}}},
        Change{"Description", 3, Entering("txtBCADesc(1)", " Tardy "), {{18, "\"Tardy\",9"}}},
        Change{"PrinterDialog", 4, Clicking("chkHCDialog"), {{37, " 1 "}}},
        Change{"ThinnestLine", 4, Clicking("optThickLine(0)"), {{43, "2"}}},
        Change{"ThickestLine", 4, Clicking("optThickLine(9)"), {{43, "11"}}},
        Change{
            "SchoolID", 5, Entering("txtHTML_School", " \xC3\x89t\xC3\xA9 "), {{71, "\"\xC9t\xE9\",\"-\",\"_\",3,7"}}},
        Change{"FirstSeparator", 5, Entering("txtHTML_File_Sep1", "~"), {{71, "\"S1\",\"~\",\"_\",3,7"}}},
        Change{"SecondSeparator", 5, Entering("txtHTML_File_Sep2", ""), {{71, "\"S1\",\"-\",\"\",3,7"}}},
        Change{"Order",
               5,
               Choosing("cboHTML_FileNameOrder", "Course + Sep1 + School + Sep2 + Student#"),
               {{71, "\"S1\",\"-\",\"_\",7,7"}}},
        Change{"ReportFolderBrowsed",
               5,
               Browsing("cmdHTML_Browse", "C:\\Other\\Don't_Delete_Me"),
               {{72, "\"c:\\other\""}}},
        Change{"ReportFolderCleared", 5, Clicking("cmdHTML_Clear"), {{72, "\"\""}}},
        Change{"TwoBrowsesCancelled", 0, Browsing("cmdDataPath", ""), {}}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST_F(SetupSave, EveryDateFormatAndLineWidthIsItsOwnOption) {
    for (int code = 1; code <= 6; ++code) {
        Start(WithLines(Base(), {{34, ' ' + QByteArray::number(7 - code) + ' '}}));
        Open();
        EXPECT_TRUE(C<QRadioButton>(QStringLiteral("optDFormat(%1)").arg(7 - code))->isChecked());
        ShowPanel(1);
        Click(QStringLiteral("optDFormat(%1)").arg(code).toUtf8().constData());
        Click("cmdPrefSave");
        EXPECT_EQ(Saved(), WithLines(Base(), {{34, ' ' + QByteArray::number(code) + ' '}}));
        Machine.Remove(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG"));
    }
    for (int option = 0; option <= 9; ++option) {
        Start(WithLines(Base(), {{43, QByteArray::number(11 - option)}}));
        Open();
        EXPECT_TRUE(C<QRadioButton>(QStringLiteral("optThickLine(%1)").arg(9 - option))->isChecked());
        ShowPanel(4);
        Click(QStringLiteral("optThickLine(%1)").arg(option).toUtf8().constData());
        Click("cmdPrefSave");
        EXPECT_EQ(Saved(), WithLines(Base(), {{43, QByteArray::number(option + 2)}}));
        Machine.Remove(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG"));
    }
}

TEST_F(SetupSave, EverythingChangedIsSavedAndReadBack) {
    Open();
    C<QWidget>(QStringLiteral("dirHDir"))->setProperty("path", QStringLiteral("c:\\other"));
    C<QWidget>(QStringLiteral("dirBkupPath"))->setProperty("path", QStringLiteral("c:\\marks"));
    Screen.Answer(MessageAnswer::Ok);
    Screen.AnswerFile(QStringLiteral("c:\\other\\1.BMP"));
    Click("cmdPhotos");
    ShowPanel(1);
    Click("optDFormat(6)");
    ShowPanel(2);
    Enter(QStringLiteral("txtSMTP"), QStringLiteral("smtp.example"));
    ShowPanel(3);
    Screen.AnswerFont(QStringLiteral("Courier"));
    Click("cmdBCAFont");
    Click("optBCADflt(0)");
    Enter(QStringLiteral("txtBCADesc(0)"), QStringLiteral("Présent"));
    Choose(QStringLiteral("cboBCACode(0)"), QStringLiteral("Z"));
    Enter(QStringLiteral("txtBCADesc(1)"), QStringLiteral("Tardy"));
    Choose(QStringLiteral("cboBCACode(1)"), QStringLiteral("[Enter]"));
    Choose(QStringLiteral("cboBCACode(2)"), QStringLiteral("[None]"));
    ShowPanel(4);
    Click("chkHCDialog");
    Click("optThickLine(9)");
    ShowPanel(5);
    Enter(QStringLiteral("txtHTML_School"), QStringLiteral("École"));
    Enter(QStringLiteral("txtHTML_File_Sep1"), QStringLiteral("~"));
    Enter(QStringLiteral("txtHTML_File_Sep2"), QString());
    Choose(QStringLiteral("cboHTML_FileNameOrder"), QStringLiteral("Student# + Sep1 + School + Sep2 + Course"));
    Screen.Answer(MessageAnswer::Ok);
    Screen.AnswerFile(QStringLiteral("c:\\other\\Don't_Delete_Me"));
    Click("cmdHTML_Browse");
    Click("cmdPrefSave");
    const QByteArray golden = HandWritten("options/changed.cfg");
    EXPECT_EQ(Saved(), golden);

    Start(Saved());
    Open();
    Click("cmdPrefSave");
    EXPECT_EQ(Saved(), golden);
}

TEST_F(SetupSave, DateFormatsOutsideOneToSixBecomeOne) {
    for (const char* stored : {" 0 ", " 7 ", "-1 ", " 32767 "}) {
        Start(WithLines(Base(), {{34, stored}}));
        Open();
        EXPECT_TRUE(C<QRadioButton>(QStringLiteral("optDFormat(1)"))->isChecked()) << stored;
        Click("cmdPrefSave");
        EXPECT_EQ(Machine.Read(QStringLiteral("c:\\gradewell\\GW_v12_PRG.CFG")), WithLines(Base(), {{34, " 1 "}}))
            << stored;
        Machine.Remove(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG"));
    }
}

TEST_F(SetupSave, StoredPrinterDialogIsShown) {
    for (const char* stored : {" 0 ", " 1 "}) {
        Start(WithLines(Base(), {{37, stored}}));
        Open();
        EXPECT_EQ(C<QCheckBox>(QStringLiteral("chkHCDialog"))->isChecked(), stored[1] == '1');
        Click("cmdPrefSave");
        EXPECT_EQ(Saved(), WithLines(Base(), {{37, stored}}));
        Machine.Remove(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG"));
    }
}

TEST_F(SetupSave, ThickLinesOutsideTheOptionsAreKept) {
    Start(WithLines(Base(), {{43, "12"}}));
    Open();
    Click("cmdPrefSave");
    EXPECT_EQ(Saved(), WithLines(Base(), {{43, "12"}}));
}

TEST_F(SetupSave, FontThatThisMachineLacksIsKept) {
    Start(WithLines(Base(), {{15, "\"No Such Font 39\""}}));
    OpenPanel(3);
    EXPECT_EQ(TextOf("lblBCAFontName"), QStringLiteral("No Such Font 39"));
    Click("cmdPrefSave");
    EXPECT_EQ(Saved(), WithLines(Base(), {{15, "\"No Such Font 39\""}}));
}

TEST_F(SetupSave, StoredPathsBecomeSmallLetters) {
    Start(WithLines(Base(), {{5, "\" C:\\MARKS\\2016 \""},
                             {65, "\"C:\\PHOTOS\\\",\".Jpg\""},
                             {72, "\"C:\\HTML\""},
                             {75, "\"C:\\Backup\""}}));
    Open();
    Click("cmdPrefSave");
    EXPECT_EQ(Saved(), Base());
}

TEST_F(SetupSave, FailedSaveIsReportedAndTheWindowCloses) {
    Open();
    Machine.Remove(QStringLiteral("c:\\gradewell\\GW_v12_PRG.CFG"));
    Machine.MakeFolder(QStringLiteral("c:\\gradewell\\GW_v12_PRG.CFG"));
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdPrefSave");
    EXPECT_EQ(Titles(), QStringLiteral("GW_v12_PRG.CFG SAVE ERROR: 75"));
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Machine.Read(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG")), Base());
}

// Counts how often the picture was shown.
class ShowCounter : public QObject {
public:
    int Shown = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        Shown += event->type() == QEvent::Show ? 1 : 0;
        return false;
    }
};

TEST_F(SetupSave, SaveShowsItsPictureWhileItWrites) {
    Open();
    ShowCounter counter;
    auto* picture = C<QLabel>(QStringLiteral("imgSave"));
    picture->installEventFilter(&counter);
    EXPECT_TRUE(picture->isHidden());
    const int rounds = Screen.PaintRounds;
    Click("cmdPrefSave");
    EXPECT_EQ(counter.Shown, 1);
    EXPECT_EQ(Screen.PaintRounds, rounds + 1);
    EXPECT_TRUE(picture->isHidden());
}

} // namespace
