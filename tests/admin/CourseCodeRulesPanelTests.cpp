#include "tests/admin/AdminWindowTest.h"

namespace {

const char* const RuleLists[] = {"cboRule_CourseStart",   "cboRule_CourseLength", "cboRule_SectionStart",
                                 "cboRule_SectionLength", "cboRule_GradeStart",   "cboRule_GradeLength"};

TEST_F(AdminWindow, ShowsTheStoredRules) {
    Open();
    const int values[] = {1, 3, 8, 2, 4, 1};
    for (std::size_t i = 0; i < std::size(RuleLists); ++i) {
        QComboBox* list = List(RuleLists[i]);
        EXPECT_EQ(list->currentIndex(), values[i]) << RuleLists[i];
        ASSERT_EQ(list->count(), 21) << RuleLists[i];
        for (int entry = 0; entry <= 20; ++entry) {
            EXPECT_EQ(list->itemText(entry), QString::number(entry));
        }
    }
    EXPECT_TRUE(Get<QRadioButton>("optRule_GradeConv(0)")->isChecked());
    EXPECT_FALSE(Get<QCheckBox>("chkUseSplitChar")->isChecked());
    EXPECT_EQ(Box("txtSplitChar")->text(), QStringLiteral("-"));
    const char* const rows[][2] = {{"1", "9"}, {"2", "10"}, {"3", "11"}, {"4", "12"}, {"K", "JK"}, {"", ""}};
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const std::string index = '(' + std::to_string(i) + ')';
        EXPECT_EQ(Box(("txtRule_GSymbol" + index).c_str())->text(), QString::fromUtf8(rows[i][0])) << i;
        EXPECT_EQ(Box(("txtRule_GActual" + index).c_str())->text(), QString::fromUtf8(rows[i][1])) << i;
    }
    EXPECT_EQ(Parts(), "||");
}

TEST_F(AdminWindow, ShowsSplitModeAndConversionMode) {
    struct {
        std::int16_t Split;
        bool Ticked;
        std::int16_t Conversion;
        int Option;
    } const cases[] = {{2, true, 1, 1}, {1, false, 0, 0}, {0, false, 0, 0}, {3, false, 1, 1}, {2, true, 7, 1}};
    for (const auto& row : cases) {
        ProgramConfig.RuleUseSplitChar = row.Split;
        ProgramConfig.RuleGradeConv = row.Conversion;
        Open();
        EXPECT_EQ(Get<QCheckBox>("chkUseSplitChar")->isChecked(), row.Ticked) << row.Split;
        EXPECT_EQ(Get<QRadioButton>("optRule_GradeConv(1)")->isChecked(), row.Option == 1) << row.Conversion;
        EXPECT_EQ(Get<QRadioButton>("optRule_GradeConv(0)")->isChecked(), row.Option == 0) << row.Conversion;
    }
}

TEST_F(AdminWindow, SplitsTheSampleWhenItsBoxIsLeft) {
    Open();
    Type("txtAdminTest", "  eng1d1-01 ");
    EXPECT_EQ(Parts(), "||");
    Tab();
    EXPECT_EQ(Box("txtAdminTest")->text(), QStringLiteral("ENG1D1-01"));
    EXPECT_EQ(Parts(), "ENG|01|1");
    Click("txtAdminTest");
    EXPECT_EQ(Parts(), "||");
    EXPECT_EQ(Box("txtAdminTest")->selectedText(), QStringLiteral("ENG1D1-01"));
}

TEST_F(AdminWindow, ALongPartIsToldByItsToolTip) {
    Open(); // wide letters: too wide for the box in every font
    List("cboRule_CourseLength")->setCurrentIndex(20);
    Type("txtAdminTest", "mwmwmwmwmwmwmwmwmwmwmwmwmw");
    Tab();
    EXPECT_EQ(Label("lblCourseTest"), QStringLiteral("MWMWMWMWMWMWMWMWMWMW"));
    auto* course = Get<QLabel>("lblCourseTest");
    QHelpEvent pointing(QEvent::ToolTip, QPoint(5, 5), course->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(course, &pointing);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("<span>MWMWMWMWMWMWMWMWMWMW</span>"));
    QToolTip::hideText();
}

TEST_F(AdminWindow, ABlankSampleIsLeftAlone) {
    Open();
    Type("txtAdminTest", "   ");
    Tab();
    EXPECT_EQ(Box("txtAdminTest")->text(), QStringLiteral("   "));
    EXPECT_EQ(Parts(), "||");
}

TEST_F(AdminWindow, ABadSampleKeepsTheFocus) {
    Open();
    Type("txtAdminTest", "eng,1");
    machine.Screen.Answer(MessageAnswer::Ok);
    Tab();
    ASSERT_EQ(machine.Screen.Messages.size(), 1U);
    EXPECT_EQ(machine.Screen.Messages[0].Title, QStringLiteral("INPUT ERROR"));
    EXPECT_EQ(machine.Screen.Messages[0].Text,
              QStringLiteral("An error has been found in: ENG [,] 1\n\n [,] is not a valid character for this line.\n\n"
                             "Non-printable characters, commas and quotation marks are not allowed on most "
                             "lines.\n\nPlease Re-enter!"));
    EXPECT_EQ(window->focusWidget(), Box("txtAdminTest"));
    EXPECT_EQ(Box("txtAdminTest")->text(), QStringLiteral("eng,1"));
    EXPECT_EQ(Parts(), "||");
}

TEST_F(AdminWindow, RulesAreTestedAsTheyStandInTheControls) {
    Open();
    Type("txtAdminTest", "ENG1D1-01");
    Tab();
    const ProgramConfigRecord before = ProgramConfig;
    List("cboRule_CourseLength")->setCurrentIndex(6);
    EXPECT_EQ(Parts(), "ENG1D1|01|1");
    Click("chkUseSplitChar");
    EXPECT_EQ(Parts(), "ENG1D1|01|1");
    List("cboRule_CourseStart")->setCurrentIndex(20);
    EXPECT_EQ(Parts(), "ENG1D1|01|1");
    Click("chkUseSplitChar");
    EXPECT_EQ(Parts(), "|01|1");
    Click("optRule_GradeConv(1)");
    EXPECT_EQ(Parts(), "|01|9");
    Click("optRule_GradeConv(0)");
    EXPECT_EQ(Parts(), "|01|1");
    EXPECT_EQ(ProgramConfig, before);
}

TEST_F(AdminWindow, RulesChangedByKeysAreTestedAtOnce) {
    Open();
    Type("txtAdminTest", "ENG1D1-01");
    Tab();
    List("cboRule_CourseLength")->setFocus();
    QTest::keyClick(List("cboRule_CourseLength"), Qt::Key_Down);
    EXPECT_EQ(Parts(), "ENG1|01|1");
    Get<QCheckBox>("chkUseSplitChar")->setFocus();
    QTest::keyClick(window->focusWidget(), Qt::Key_Space);
    EXPECT_EQ(Parts(), "ENG1D1|01|1");
    Get<QRadioButton>("optRule_GradeConv(0)")->setFocus();
    QTest::keyClick(window->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(Parts(), "ENG1D1|01|9");
    QTest::keyClick(window->focusWidget(), Qt::Key_Up);
    EXPECT_EQ(Parts(), "ENG1D1|01|1");
}

TEST_F(AdminWindow, AnyListAtZeroClearsTheResultsInBothModes) {
    Open();
    for (const bool split : {false, true}) {
        Get<QCheckBox>("chkUseSplitChar")->setChecked(split);
        for (const char* name : RuleLists) {
            Box("txtAdminTest")->setText(QStringLiteral("ENG1D1-01"));
            window->TestCourseCode();
            EXPECT_NE(Parts(), "||") << name;
            const int value = List(name)->currentIndex();
            List(name)->setCurrentIndex(0);
            EXPECT_EQ(Parts(), "||") << name;
            List(name)->setCurrentIndex(value);
        }
    }
}

TEST_F(AdminWindow, ListsDoNotTestAnEmptySample) {
    Open();
    Get<QLabel>("lblCourseTest")->setText(QStringLiteral("kept"));
    List("cboRule_CourseLength")->setCurrentIndex(5);
    Click("optRule_GradeConv(1)");
    EXPECT_EQ(Parts(), "kept||");
    Click("chkUseSplitChar"); // tests whatever the sample is
    EXPECT_EQ(Parts(), "||");
}

TEST_F(AdminWindow, LeavingTheSplitBoxTicksTheCheckBox) {
    for (const char* typed : {"x", "", "ab"}) {
        Open();
        Box("txtAdminTest")->setText(QStringLiteral("ENGX1"));
        Type("txtSplitChar", typed);
        EXPECT_FALSE(Get<QCheckBox>("chkUseSplitChar")->isChecked());
        Tab();
        EXPECT_TRUE(Get<QCheckBox>("chkUseSplitChar")->isChecked()) << typed;
        EXPECT_EQ(Box("txtSplitChar")->text(), QString::fromUtf8(typed).toUpper());
    }
}

TEST_F(AdminWindow, LeavingTheSplitBoxSplitsTheSample) {
    Open();
    Box("txtAdminTest")->setText(QStringLiteral("ENGX1"));
    Type("txtSplitChar", "x");
    Tab(); // onto the sample, which clears the results
    EXPECT_EQ(window->focusWidget(), Box("txtAdminTest"));
    Type("txtSplitChar", "");
    Click("cmdClrAdminPath");
    EXPECT_EQ(Parts(), "|NGX1|X");
    Type("txtSplitChar", "x");
    Click("cmdClrAdminPath");
    EXPECT_EQ(Parts(), "ENG|1|X");
}

TEST_F(AdminWindow, TheSplitBoxRefusesBlanksCommasAndQuotes) {
    for (const char* typed : {" ", "- ", ",", "\""}) {
        Open();
        Type("txtSplitChar", typed);
        machine.Screen.Messages.clear();
        machine.Screen.Answer(MessageAnswer::Ok);
        Tab();
        ASSERT_EQ(machine.Screen.Messages.size(), 1U) << typed;
        EXPECT_TRUE(machine.Screen.Messages[0].Text.contains(
            QStringLiteral(" As well, the following characters are not allowed:  \n\n")));
        EXPECT_EQ(window->focusWidget(), Box("txtSplitChar")) << typed;
        EXPECT_FALSE(Get<QCheckBox>("chkUseSplitChar")->isChecked()) << typed;
        EXPECT_EQ(Box("txtSplitChar")->text(), QString::fromUtf8(typed));
    }
}

TEST_F(AdminWindow, TouchingAConversionRowSelectsConversion) {
    for (const char* name : {"txtRule_GSymbol(0)", "txtRule_GActual(0)", "txtRule_GSymbol(5)", "txtRule_GActual(3)"}) {
        Open();
        QTest::mousePress(Box(name), Qt::LeftButton);
        EXPECT_TRUE(Get<QRadioButton>("optRule_GradeConv(1)")->isChecked()) << name;
        EXPECT_FALSE(Get<QRadioButton>("optRule_GradeConv(0)")->isChecked()) << name;
    }
    Open();
    Box("txtRule_GSymbol(0)")->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(Get<QRadioButton>("optRule_GradeConv(0)")->isChecked()); // the keyboard only passes through
}

TEST_F(AdminWindow, ABadTextElsewhereKeepsARowFromBeingTouched) {
    Open();
    Type("txtSplitChar", ",");
    machine.Screen.Answer(MessageAnswer::Ok);
    Click("txtRule_GSymbol(0)");
    EXPECT_EQ(machine.Screen.Messages.size(), 1U);
    EXPECT_EQ(window->focusWidget(), Box("txtSplitChar"));
    EXPECT_TRUE(Get<QRadioButton>("optRule_GradeConv(0)")->isChecked());
}

TEST_F(AdminWindow, TheLabelBesideTheOptionSelectsItToo) {
    Open();
    Box("txtAdminTest")->setText(QStringLiteral("ENG1"));
    Click("lblConversion");
    EXPECT_TRUE(Get<QRadioButton>("optRule_GradeConv(1)")->isChecked());
    EXPECT_EQ(Parts(), "ENG||9");
}

TEST_F(AdminWindow, LeavingAConversionBoxTestsTheSample) {
    Open();
    Box("txtAdminTest")->setText(QStringLiteral("ENG1"));
    Type("txtRule_GActual(0)", " pré ");
    Tab();
    EXPECT_EQ(Box("txtRule_GActual(0)")->text(), QString::fromUtf8("PRÉ"));
    EXPECT_EQ(Parts(), QStringLiteral("ENG||PRÉ").toStdString());
    Type("txtRule_GActual(0)", "");
    Tab(); // nothing happens on an empty box
    EXPECT_EQ(Parts(), QStringLiteral("ENG||PRÉ").toStdString());
    Click("cmdClrAdminPath");
    Click("optRule_GradeConv(1)");
    EXPECT_EQ(Parts(), "ENG||1");
}

TEST_F(AdminWindow, AConversionBoxLeavesAnEmptySampleAlone) {
    Open();
    Get<QLabel>("lblCourseTest")->setText(QStringLiteral("kept"));
    Type("txtRule_GSymbol(5)", "q");
    Tab();
    EXPECT_EQ(Box("txtRule_GSymbol(5)")->text(), QStringLiteral("Q"));
    EXPECT_EQ(Parts(), "kept||");
}

TEST_F(AdminWindow, ABadConversionTextKeepsTheFocus) {
    for (const char* name : {"txtRule_GSymbol(2)", "txtRule_GActual(4)"}) {
        Open();
        Type(name, "a\"b");
        machine.Screen.Messages.clear();
        machine.Screen.Answer(MessageAnswer::Ok);
        Click("cmdSaveRules");
        ASSERT_EQ(machine.Screen.Messages.size(), 1U) << name;
        EXPECT_TRUE(window->isVisible());
        EXPECT_EQ(window->focusWidget(), Box(name));
        EXPECT_EQ(Box(name)->text(), QStringLiteral("a\"b"));
        EXPECT_EQ(Saved(), HandWritten("admin/before.cfg"));
    }
}

TEST_F(AdminWindow, EnterMovesOnInTheTextBoxes) {
    Open();
    const char* const moves[][2] = {{"txtSplitChar", "txtAdminTest"},
                                    {"txtAdminTest", "optRule_GradeConv(0)"},
                                    {"txtRule_GSymbol(0)", "txtRule_GActual(0)"},
                                    {"txtRule_GActual(5)", "cmdSaveRules"}};
    for (const auto& move : moves) {
        Box(move[0])->setFocus(Qt::TabFocusReason);
        QTest::keyClick(Box(move[0]), Qt::Key_Return);
        EXPECT_EQ(window->focusWidget()->objectName(), QString::fromUtf8(move[1]));
    }
    EXPECT_TRUE(window->isVisible());
}

TEST_F(AdminWindow, EveryBoxSelectsItsTextOnFocus) {
    Open();
    for (const char* name : {"txtSplitChar", "txtRule_GSymbol(1)", "txtRule_GActual(1)"}) {
        Click(name);
        EXPECT_EQ(Box(name)->selectedText(), Box(name)->text()) << name;
        EXPECT_FALSE(Box(name)->text().isEmpty());
    }
}

} // namespace
