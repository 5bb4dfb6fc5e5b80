#include "options/SchemePanel.h"
#include "tests/options/SetupFixture.h"

// What all text boxes of General Options have in common, and when their texts are taken.

namespace {

struct Box {
    const char* Name;
    int Panel;
    const char* Refused; ///< typed, with blanks around it
    const char* InBox;   ///< what the box shows once it is refused
    const char* Good;
    const char* Message; ///< a part of the refusal that tells its kind
};

class EveryBox : public SetupTest, public testing::WithParamInterface<Box> {
protected:
    QString Name = QString::fromUtf8(GetParam().Name);
    QLineEdit* Line() { return C<QLineEdit>(Name); }
};

const char Commas[] = "Non-printable characters, commas and quotation marks are not allowed on most lines.";
const char NoSlashes[] = "As well, the following characters are not allowed: /\\:*?<>|";
const char Digits[] = "Valid characters are: 0123456789";

INSTANTIATE_TEST_SUITE_P(
    Boxes, EveryBox,
    testing::Values(Box{"txtSMTP", 2, " a,b ", "a,b", " host ", Commas},
                    Box{"txtBCADesc(0)", 3, " a,b ", "a,b", " Away ", Commas},
                    Box{"txtBCADesc(2)", 3, " a,b ", "a,b", " Away ", Commas},
                    Box{"txtHTML_School", 5, " a,b ", " a,b ", " S/2 ", Commas},
                    Box{"txtHTML_File_Sep1", 5, " a|b ", " a|b ", " x ", NoSlashes},
                    Box{"txtHTML_File_Sep2", 5, " a,b ", " a,b ", " x ", NoSlashes},
                    Box{"txtABCChr(0)", 6, " , ", ",", " x", Commas},
                    Box{"txtABCChr(12)", 6, " , ", ",", "xy ", Commas}, Box{"txtABCVal(0)", 6, " x", "x", " 1", Digits},
                    Box{"txtABCVal(12)", 6, "9x", "9x", "91", Digits},
                    Box{"txtABCHeading", 6, " a,b ", "a,b", " Level ", Commas}),
    [](const auto& row) {
        return QString::fromUtf8(row.param.Name).remove(u'(').remove(u')').remove(u'_').toStdString();
    });

TEST_P(EveryBox, SelectsItsTextTrimsItAndMovesOnWithEnter) {
    OpenPanel(GetParam().Panel);
    Line()->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(Line()->selectedText(), Line()->text());
    EXPECT_NE(Line()->text(), QString());
    Type(Name, QString::fromUtf8(GetParam().Good));
    QTest::keyClick(Line(), Qt::Key_Return);
    EXPECT_FALSE(Line()->hasFocus());
    EXPECT_EQ(Line()->text(), QString::fromUtf8(GetParam().Good).trimmed());
    EXPECT_EQ(Titles(), QString());
    EXPECT_TRUE(IsOpen());
}

TEST_P(EveryBox, KeepsTheFocusWhenItsTextIsRefused) {
    OpenPanel(GetParam().Panel);
    Screen.Answer(MessageAnswer::Ok);
    Enter(Name, QString::fromUtf8(GetParam().Refused));
    EXPECT_TRUE(Line()->hasFocus());
    EXPECT_EQ(Line()->text(), QString::fromUtf8(GetParam().InBox));
    ASSERT_EQ(Titles(), QStringLiteral("INPUT ERROR"));
    EXPECT_EQ(Screen.Messages[0].Icon, MessageIcon::Critical);
    EXPECT_TRUE(Screen.Messages[0].Text.contains(QString::fromUtf8(GetParam().Message)))
        << Screen.Messages[0].Text.toStdString();
}

class SchemeFlag : public SetupTest {
protected:
    bool IsChanged() { return C<SchemePanel>(QStringLiteral("p3dSetup(6)"))->IsChanged(); }
};

TEST_F(SchemeFlag, IsLeftAloneByEverythingButSymbolsValuesAndSave) {
    OpenPanel(6);
    Screen.Answer(MessageAnswer::Ok);
    Enter(QStringLiteral("txtABCVal(2)"), QStringLiteral("x"));
    EXPECT_FALSE(IsChanged()) << "a refused value";
    C<QLineEdit>(QStringLiteral("txtABCVal(2)"))->setText(QStringLiteral("53"));
    OpenPanel(6);
    Enter(QStringLiteral("txtABCHeading"), QStringLiteral("Level"));
    Choose(QStringLiteral("cboABCLevels"), QStringLiteral("3"));
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdABCCheck");
    Machine.Write(QStringLiteral("c:\\other\\x.scm"), HandWritten("options/level.scm"));
    Screen.AnswerFile(QStringLiteral("c:\\other\\x.scm"));
    Click("cmdLoadScheme");
    EXPECT_EQ(C<QLineEdit>(QStringLiteral("txtABCChr(0)"))->text(), QStringLiteral("R"));
    Click("cmdClearScheme");
    EXPECT_FALSE(IsChanged());
    Enter(QStringLiteral("txtABCChr(0)"), QStringLiteral("F"));
    EXPECT_TRUE(IsChanged());
    Screen.AnswerFile(QStringLiteral("c:\\other\\x.scm"));
    Click("cmdLoadScheme");
    EXPECT_TRUE(IsChanged()) << "loading saves nothing";
}

TEST_F(SchemeFlag, FailedSaveKeepsFlagAndOldFile) {
    const QString file = QStringLiteral("c:\\other\\x.scm");
    Machine.Write(file, "old");
    OpenPanel(6);
    Enter(QStringLiteral("txtABCChr(0)"), QStringLiteral("E"));
    Calls.FailAll(FaultyCalls::Kind::Write, ENOSPC);
    Screen.AnswerFile(file);
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdSaveScheme");
    EXPECT_EQ(Titles(), QStringLiteral("SAVE SCHEME ERROR: 61"));
    EXPECT_EQ(Screen.Messages[0].Text, QStringLiteral("Can't Save: c:\\other\\x.scm\n\nThe error is: Disk full"));
    EXPECT_EQ(Screen.Messages[0].Icon, MessageIcon::Critical);
    EXPECT_EQ(Machine.Read(file), QByteArray("old"));
    EXPECT_TRUE(IsChanged());
}

TEST_F(SchemeFlag, SchemeWithoutPermissionIsReported) {
    Machine.Write(QStringLiteral("c:\\other\\x.scm"), HandWritten("options/level.scm"));
    OpenPanel(6);
    Calls.FailAll(FaultyCalls::Kind::OpenForReading, EACCES);
    Screen.AnswerFile(QStringLiteral("c:\\other\\x.scm"));
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdLoadScheme");
    EXPECT_EQ(Titles(), QStringLiteral("LOAD SCHEME ERROR: 70"));
    EXPECT_EQ(C<QLineEdit>(QStringLiteral("txtABCHeading"))->text(), QStringLiteral("ABC"));
}

using FrenchSetup = SetupTest;

TEST_F(FrenchSetup, QuestionsAndReportsStayEnglishAndNameTheProduct) {
    Start(Base(), Edition::French);
    Open();
    Screen.Answer(MessageAnswer::Ok);
    Screen.AnswerFile(QStringLiteral("c:\\GWother\\Don't_Delete_Me"));
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdDataPath");
    ShowPanel(6);
    Enter(QStringLiteral("txtABCChr(2)"), QStringLiteral("F"));
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdABCCheck");
    Screen.Answer(MessageAnswer::Yes);
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdPrefSave");
    EXPECT_EQ(Titles(), QStringLiteral("Locate Gradewell Data Folders|Gradewell Path Error|LEVELS CHECK|SAVE SCHEME|"
                                       "SCHEME ERROR"));
    EXPECT_TRUE(Screen.Messages[0].Text.contains(QStringLiteral("set the path to Carnelle data folders.")));
    EXPECT_EQ(Screen.Messages[2].Text, QStringLiteral("The following problems were found: \n\n"
                                                      "  -> Duplicated symbol:  [F] at positions 1 and 3\n\n"));
    EXPECT_TRUE(Screen.Messages[3].Text.startsWith(QStringLiteral("You have made some changes to the currrent Grade")));
}

} // namespace
