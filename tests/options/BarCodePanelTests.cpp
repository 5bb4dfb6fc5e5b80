#include "options/BarCodePanel.h"
#include "tests/options/SetupFixture.h"

namespace {

class BarCode : public SetupTest {
protected:
    QString Result(int field) { return C<QLabel>(QStringLiteral("lblBCCode(%1)").arg(field))->text(); }
    QLineEdit* Description(int field) { return C<QLineEdit>(QStringLiteral("txtBCADesc(%1)").arg(field)); }
    QString Code(int field) { return C<QComboBox>(QStringLiteral("cboBCACode(%1)").arg(field))->currentText(); }
};

TEST_F(BarCode, StoredCodesSelectTheirEntriesAndShowTheirResults) {
    Start(WithLines(Base(), {{17, "\"a\",13"}, {18, "\"b\",36"}, {19, "\"c\",65"}}));
    Open();
    const char* const codes[] = {"[Enter]", "$", "A"};
    const char* const results[] = {"*$M*", "*$*", "*A*"};
    for (int field = 0; field < 3; ++field) {
        EXPECT_EQ(Code(field), QString::fromUtf8(codes[field]));
        EXPECT_EQ(Result(field), QString::fromUtf8(results[field]));
        EXPECT_EQ(C<QLabel>(QStringLiteral("lblBCCode(%1)").arg(field))->font().family(),
                  QStringLiteral("Free 3 of 9"));
    }
    EXPECT_EQ(TextOf("lblBCAFSample"), QStringLiteral("CHOOSE ANOTHER FONT"));
    EXPECT_EQ(C<QLabel>(QStringLiteral("lblBCAFSample"))->font().family(), QStringLiteral("Free 3 of 9"));
    EXPECT_FALSE(C<QLabel>(QStringLiteral("lblBCAFSample"))->font().bold());
}

TEST_F(BarCode, CodeOutsideTheListSelectsNothingAndIsKept) {
    const QByteArray file = WithLines(Base(), {{17, "\"a\",97"}, {18, "\"b\",-5"}, {19, "\"c\",0"}});
    Start(file);
    Open();
    EXPECT_EQ(Code(0), QString());
    EXPECT_EQ(Code(1), QString());
    EXPECT_EQ(Result(0), QStringLiteral("*a*"));
    Click("cmdPrefSave");
    EXPECT_EQ(Saved(), file);
}

TEST_F(BarCode, WithoutAFontYesIsOffAndNothingIsKept) {
    Start(WithLines(Base(), {{15, "\"\""}}));
    OpenPanel(3);
    EXPECT_TRUE(C<QRadioButton>(QStringLiteral("optBCADflt(0)"))->isChecked());
    EXPECT_FALSE(C<QRadioButton>(QStringLiteral("optBCADflt(1)"))->isEnabled());
    EXPECT_EQ(TextOf("lblBCAFSample"), QString());
    EXPECT_EQ(C<QLabel>(QStringLiteral("lblBCAFSample"))->font().family(), QStringLiteral("MS Sans Serif"));
    EXPECT_EQ(Result(0), QString());
    Click("cmdPrefSave");
    EXPECT_EQ(
        Saved(),
        WithLines(Base(), {{13, " 0 "}, {14, " 0 "}, {15, "\"\""}, {17, "\"\",0"}, {18, "\"\",0"}, {19, "\"\",0"}}));
}

TEST_F(BarCode, ChosenFontTurnsYesOn) {
    Start(WithLines(Base(), {{15, "\"\""}}));
    OpenPanel(3);
    Screen.AnswerFont(QStringLiteral("Courier"));
    Click("cmdBCAFont");
    ASSERT_EQ(Screen.FontDialogs.size(), 1U);
    EXPECT_EQ(Screen.FontDialogs[0].FontName, QString());
    EXPECT_EQ(Screen.FontDialogs[0].PointSize, 12);
    EXPECT_EQ(ProgramConfig.BarCodeFontName, QStringLiteral("Courier"));
    EXPECT_EQ(TextOf("lblBCAFontName"), QStringLiteral("Courier"));
    EXPECT_EQ(Result(0), QStringLiteral("*A*"));
    EXPECT_TRUE(C<QRadioButton>(QStringLiteral("optBCADflt(1)"))->isEnabled());
    Click("optBCADflt(1)");
    EXPECT_EQ(ProgramConfig.BarCodeDefaultForm, 1);
    Click("cmdPrefSave");
    EXPECT_EQ(Saved(), WithLines(Base(), {{15, "\"Courier\""}}));
}

TEST_F(BarCode, FontDialogPreselectsTheStoredFont) {
    OpenPanel(3);
    Screen.AnswerFont(QString());
    Click("cmdBCAFont");
    EXPECT_EQ(Screen.FontDialogs[0].FontName, QStringLiteral("Free 3 of 9"));
}

TEST_F(BarCode, DefaultFormIsTheWindowsOwnUntilSave) {
    OpenPanel(3);
    Click("optBCADflt(0)");
    EXPECT_EQ(ProgramConfig.BarCodeDefaultForm, 1);
}

TEST_F(BarCode, FieldWithoutACodeHasNoDescription) {
    OpenPanel(3);
    Choose(QStringLiteral("cboBCACode(0)"), QStringLiteral("[None]"));
    EXPECT_EQ(Description(0)->text(), QString());
    EXPECT_FALSE(Description(0)->isEnabled());
    EXPECT_EQ(Result(0), QString());
    EXPECT_EQ(ProgramConfig.BarCodeDesc[0], QString());
    EXPECT_EQ(ProgramConfig.BarCodeCode[0], 0);
    Choose(QStringLiteral("cboBCACode(0)"), QStringLiteral("[Tab]"));
    EXPECT_EQ(Description(0)->text(), QStringLiteral("Absent"));
    EXPECT_TRUE(Description(0)->isEnabled());
    EXPECT_EQ(Result(0), QStringLiteral("*$I*"));
    EXPECT_EQ(ProgramConfig.BarCodeDesc[0], QStringLiteral("Absent"));
    EXPECT_EQ(ProgramConfig.BarCodeCode[0], 9);
}

TEST_F(BarCode, StoredDescriptionWithoutACodeIsKeptUntilItIsChanged) {
    const QByteArray file = WithLines(Base(), {{19, "\"Excused\",0"}});
    Start(file);
    OpenPanel(3);
    EXPECT_TRUE(Description(2)->isEnabled());
    Click("cmdPrefSave");
    EXPECT_EQ(Saved(), file);
}

TEST_F(BarCode, BrokenFontIsReportedOnceAndTheWindowGoesOn) {
    Start(WithLines(Base(), {{15, "\"\""}}));
    BarCodePanel panel(nullptr,
                       [](QLabel&, const QString& name, int) { return name != QStringLiteral("Broken, \"39\""); });
    panel.Load();
    EXPECT_EQ(Titles(), QString());
    Screen.AnswerFont(QStringLiteral("Broken, \"39\""));
    Screen.Answer(MessageAnswer::Ok);
    Find<QPushButton>(panel, "cmdBCAFont")->click();
    ASSERT_EQ(Titles(), QStringLiteral("FONT ERROR"));
    EXPECT_EQ(Screen.Messages[0].Text, QStringLiteral("An error has occurred with the font: Broken, \"39\""));
    EXPECT_EQ(Screen.Messages[0].Buttons, MessageButtons::Ok);
    EXPECT_TRUE(Find<QRadioButton>(panel, "optBCADflt(1)")->isEnabled());
    EXPECT_EQ(Find<QLabel>(panel, "lblBCAFontName")->text(), QStringLiteral("Broken, \"39\""));
    Find<QPushButton>(panel, "cmdBCAClear")->click();
    EXPECT_EQ(Screen.Messages.size(), 1U);
}

TEST_F(BarCode, FontsThatTheMachineHasOrLacksAreNoError) {
    const QStringList families = QFontDatabase::families();
    ASSERT_FALSE(families.isEmpty());
    for (const QString& font : QStringList{families.first(), families.last().toUpper(), QStringLiteral("None 39")}) {
        Start(WithLines(Base(), {{15, '"' + font.toLatin1() + '"'}}));
        Open();
        EXPECT_EQ(Titles(), QString()) << font.toStdString();
    }
}

TEST_F(BarCode, LongOrTallFontsDoNotMoveThePanel) {
    Start(WithLines(Base(), {{15, '"' + QByteArray("Code 39 ").repeated(40) + '"'}}));
    OpenPanel(3);
    for (int field = 0; field < 3; ++field) {
        C<QLabel>(QStringLiteral("lblBCCode(%1)").arg(field))->setFont(QFont(QStringLiteral("Sans"), 200));
    }
    C<QLabel>(QStringLiteral("lblBCAFSample"))->setFont(QFont(QStringLiteral("Sans"), 200));
    QCoreApplication::processEvents();
    EXPECT_EQ(Window->size(), QSize(800, 600));
    EXPECT_EQ(C<QWidget>(QStringLiteral("p3dSetup(3)"))->size(), QSize(609, 557));
}

TEST_F(BarCode, RefusedDescriptionStaysInTheBox) {
    OpenPanel(3);
    Screen.Answer(MessageAnswer::Ok);
    Enter(QStringLiteral("txtBCADesc(0)"), QStringLiteral("a,b"));
    EXPECT_TRUE(Description(0)->hasFocus());
    EXPECT_EQ(ProgramConfig.BarCodeDesc[0], QStringLiteral("Absent"));
}

} // namespace
