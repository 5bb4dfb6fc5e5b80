#include "tests/options/SetupFixture.h"

namespace {

class Html : public SetupTest {
protected:
    // Starts on these values of the report names, line 71 of the file.
    void StartOn(const QByteArray& names) { Start(WithLines(Base(), {{71, names}})); }
    QString Example() { return TextOf("lblHTML_FileNameExample"); }
    QString Box(const char* name) { return C<QLineEdit>(QString::fromUtf8(name))->text(); }
    QString Stored() const { return ProgramConfig.HTMLFileSep1 + u'|' + ProgramConfig.HTMLFileSep2; }
    void ChooseOrder(int order) { C<QComboBox>(QStringLiteral("cboHTML_FileNameOrder"))->setCurrentIndex(order); }
};

struct OrderCase {
    const char* Names;
    int Order;
    const char* Example;
    const char* Stored;
};

TEST_F(Html, ChosenOrderIsStoredAndMayEmptyAStoredSeparator) {
    for (const OrderCase& row : {OrderCase{"\"\",\"_\",\"-\",1,0", 0, "StudentID_CourseCode.htm", "_|-"},
                                 OrderCase{"\"S1\",\"-\",\"_\",0,0", 2, "S1-StudentID_CourseCode.htm", "-|_"},
                                 OrderCase{"\"\",\"-\",\"_\",0,0", 2, "StudentID_CourseCode.htm", "|_"},
                                 OrderCase{"\"\",\"-\",\"_\",0,0", 5, "CourseCode-StudentID.htm", "-|"},
                                 OrderCase{"\"\",\"-\",\"_\",0,0", 6, "StudentID-CourseCode.htm", "-|"}}) {
        StartOn(row.Names);
        OpenPanel(5);
        ChooseOrder(row.Order);
        EXPECT_EQ(Example(), QString::fromUtf8(row.Example));
        EXPECT_EQ(Stored(), QString::fromUtf8(row.Stored)) << row.Example;
        EXPECT_EQ(ProgramConfig.HTMLFileNameOrder, row.Order);
    }
}

TEST_F(Html, EmptiedSeparatorStaysInItsBoxAndComesBackWithASchool) {
    StartOn("\"\",\"-\",\"_\",0,0");
    OpenPanel(5);
    ChooseOrder(2);
    EXPECT_EQ(Box("txtHTML_File_Sep1"), QStringLiteral("-"));
    EXPECT_EQ(Stored(), QStringLiteral("|_"));
    Enter(QStringLiteral("txtHTML_School"), QStringLiteral("S1"));
    EXPECT_EQ(Stored(), QStringLiteral("-|_"));
    EXPECT_EQ(Example(), QStringLiteral("S1-StudentID_CourseCode.htm"));
}

TEST_F(Html, SecondSeparatorComesBackWithASchool) {
    StartOn("\"\",\"-\",\"_\",0,0");
    OpenPanel(5);
    ChooseOrder(5);
    EXPECT_EQ(Stored(), QStringLiteral("-|"));
    EXPECT_EQ(Box("txtHTML_File_Sep2"), QStringLiteral("_"));
    Enter(QStringLiteral("txtHTML_School"), QStringLiteral("S1"));
    EXPECT_EQ(Stored(), QStringLiteral("-|_"));
    EXPECT_EQ(Example(), QStringLiteral("CourseCode-StudentID_S1.htm"));
}

TEST_F(Html, OpeningOnABlankSchoolEmptiesTheStoredSeparatorBeforeTheBoxesAreFilled) {
    StartOn("\"\",\"-\",\"_\",3,0");
    Open();
    EXPECT_EQ(Stored(), QStringLiteral("|_"));
    EXPECT_EQ(Box("txtHTML_File_Sep1"), QString());
    EXPECT_EQ(Box("txtHTML_File_Sep2"), QStringLiteral("_"));
    Click("cmdPrefSave");
    EXPECT_EQ(Saved(), WithLines(Base(), {{71, "\"\",\"\",\"_\",3,0"}}));
}

TEST_F(Html, OrderOutsideTheListSelectsNothingAndIsKept) {
    for (const char* names : {"\"S1\",\"-\",\"_\",8,0", "\"S1\",\"-\",\"_\",-1,0"}) {
        StartOn(names);
        Open();
        EXPECT_EQ(C<QComboBox>(QStringLiteral("cboHTML_FileNameOrder"))->currentIndex(), -1);
        EXPECT_EQ(Example(), QString());
        Click("cmdPrefSave");
        EXPECT_EQ(Saved(), WithLines(Base(), {{71, names}}));
        Machine.Remove(QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG"));
    }
}

TEST_F(Html, RefusedCharactersStayInTheBox) {
    for (const char* refused : {"/", "\\", ":", "*", "?", "<", ">", "|", ",", "\""}) {
        OpenPanel(5);
        Screen.Answer(MessageAnswer::Ok);
        Enter(QStringLiteral("txtHTML_File_Sep2"), QString::fromUtf8(refused));
        EXPECT_TRUE(C<QLineEdit>(QStringLiteral("txtHTML_File_Sep2"))->hasFocus()) << refused;
        EXPECT_EQ(ProgramConfig.HTMLFileSep2, QStringLiteral("_")) << refused;
        EXPECT_EQ(Screen.Messages.back().Title, QStringLiteral("INPUT ERROR"));
        EXPECT_TRUE(Screen.Messages.back().Text.contains(
            QStringLiteral(" As well, the following characters are not allowed: /\\:*?<>|\n\nPlease Re-enter!")));
    }
    OpenPanel(5);
    Enter(QStringLiteral("txtHTML_School"), QStringLiteral("a/b"));
    EXPECT_EQ(ProgramConfig.HTMLSchool, QStringLiteral("a/b"));
}

TEST_F(Html, BrowseProposesTheDummyFileInTheReportFolder) {
    for (const char* stored : {"c:\\html", ""}) {
        Start(WithLines(Base(), {{72, '"' + QByteArray(stored) + '"'}}));
        OpenPanel(5);
        Screen.Answer(MessageAnswer::Ok);
        Screen.AnswerFile(QString());
        Click("cmdHTML_Browse");
        EXPECT_EQ(Screen.Messages.back().Title, QStringLiteral("Select HTML Report Folder"));
        EXPECT_EQ(Screen.FileDialogs.back().Title, QStringLiteral("Locate Gradewell Data Folders"));
        EXPECT_EQ(Screen.FileDialogs.back().FileName,
                  *stored == 0 ? QStringLiteral("\\Don't_Delete_Me") : QStringLiteral("c:\\html\\Don't_Delete_Me"));
        EXPECT_EQ(TextOf("lblHTML_Path"), QString::fromUtf8(stored));
    }
}

TEST_F(Html, GradebookFoldersAreNoMatterHere) {
    OpenPanel(5);
    Screen.Answer(MessageAnswer::Ok);
    Screen.AnswerFile(QStringLiteral("c:\\GWother\\Don't_Delete_Me"));
    Click("cmdHTML_Browse");
    EXPECT_EQ(ProgramConfig.HTMLPath, QStringLiteral("c:\\gwother"));
    EXPECT_EQ(Titles(), QStringLiteral("Select HTML Report Folder"));
}

} // namespace
