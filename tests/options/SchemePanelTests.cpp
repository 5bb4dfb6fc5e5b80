#include "tests/options/SchemeEditorFixture.h"

namespace {

TEST_F(SchemeEditor, OpensOnTheDefaultScheme) {
    OpenPanel(6);
    EXPECT_EQ(Scheme(), QString::fromUtf8(DefaultScheme));
    EXPECT_EQ(Heading(), QStringLiteral("ABC"));
    EXPECT_EQ(Levels()->currentText(), QStringLiteral("13"));
    EXPECT_EQ(Levels()->count(), 18);
    EXPECT_EQ(TextOf("lblABCLow"), QStringLiteral("For 0 to 49.9% use:"));
    EXPECT_EQ(ColourOf(Symbol(12)), White);
    EXPECT_EQ(ColourOf(Symbol(13)), Cyan);
    EXPECT_FALSE(Symbol(13)->isEnabled());
}

TEST_F(SchemeEditor, NumberOfLevelsEmptiesAndOpensFields) {
    OpenPanel(6);
    Choose(QStringLiteral("cboABCLevels"), QStringLiteral("2"));
    EXPECT_EQ(Scheme(), QStringLiteral("F/0 D-/50"));
    for (int p = 2; p <= 18; ++p) {
        EXPECT_EQ(Symbol(p)->text() + Value(p)->text(), QString()) << p;
        EXPECT_EQ(ColourOf(Value(p)), Cyan) << p;
        EXPECT_FALSE(Value(p)->isEnabled()) << p;
    }
    Choose(QStringLiteral("cboABCLevels"), QStringLiteral("19"));
    EXPECT_EQ(ColourOf(Symbol(1)), White);
    EXPECT_EQ(ColourOf(Symbol(18)), Yellow);
    EXPECT_TRUE(Value(18)->isEnabled());
}

TEST_F(SchemeEditor, ChoosingTheSameNumberAgainColoursByTheTexts) {
    OpenPanel(6);
    Enter(QStringLiteral("txtABCVal(5)"), QStringLiteral("60"));
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdABCCheck");
    EXPECT_EQ(ColourOf(Value(5)), Pink);
    Levels()->setFocus();
    Levels()->showPopup();
    QTest::keyClick(Levels()->view(), Qt::Key_Return);
    EXPECT_EQ(Levels()->currentText(), QStringLiteral("13"));
    EXPECT_EQ(ColourOf(Value(5)), White);
    EXPECT_EQ(Value(5)->text(), QStringLiteral("60"));
}

TEST_F(SchemeEditor, FieldsShowWhetherTheyAreEmpty) {
    OpenPanel(6);
    Type(QStringLiteral("txtABCChr(3)"), QString());
    EXPECT_EQ(ColourOf(Symbol(3)), Yellow);
    Type(QStringLiteral("txtABCChr(3)"), QStringLiteral("x"));
    EXPECT_EQ(ColourOf(Symbol(3)), White);
}

TEST_F(SchemeEditor, FieldsTakeNoMoreThanASchemeFileMayHold) {
    OpenPanel(6);
    Enter(QStringLiteral("txtABCChr(3)"), QStringLiteral("wxyz"));
    EXPECT_EQ(Symbol(3)->text(), QStringLiteral("wxy"));
    Enter(QStringLiteral("txtABCVal(3)"), QStringLiteral("567"));
    EXPECT_EQ(Value(3)->text(), QStringLiteral("56"));
}

TEST_F(SchemeEditor, LowestLabelFollowsTheSecondValue) {
    OpenPanel(6);
    Enter(QStringLiteral("txtABCVal(1)"), QStringLiteral("40"));
    EXPECT_EQ(TextOf("lblABCLow"), QStringLiteral("For 0 to 39.9% use:"));
    Enter(QStringLiteral("txtABCVal(2)"), QStringLiteral("45"));
    EXPECT_EQ(TextOf("lblABCLow"), QStringLiteral("For 0 to 39.9% use:"));
}

TEST_F(SchemeEditor, RefusedTextsKeepTheFocus) {
    struct Row {
        const char* Box;
        const char* Text;
    };
    for (const Row& row : {Row{"txtABCChr(2)", "a,"}, Row{"txtABCChr(2)", "\""}, Row{"txtABCVal(2)", "5x"},
                           Row{"txtABCVal(2)", "-1"}, Row{"txtABCHeading", "a,b"}}) {
        OpenPanel(6);
        Screen.Answer(MessageAnswer::Ok);
        Enter(QString::fromUtf8(row.Box), QString::fromUtf8(row.Text));
        EXPECT_TRUE(C<QLineEdit>(QString::fromUtf8(row.Box))->hasFocus()) << row.Box;
        EXPECT_EQ(Screen.Messages.back().Title, QStringLiteral("INPUT ERROR"));
    }
}

TEST_F(SchemeEditor, ValueMessageIsTheLongOne) {
    OpenPanel(6);
    Screen.Answer(MessageAnswer::Ok);
    Enter(QStringLiteral("txtABCVal(2)"), QStringLiteral("5a"));
    EXPECT_EQ(Screen.Messages[0].Text,
              QStringLiteral("An error has been found in: 5 [a] \n\n [a] is not a valid character for this "
                             "line.\n\nValid characters are: 0123456789\n\nPlease ReEnter!"));
}

// When Save of the window asks about the scheme.
struct FlagCase {
    const char* Name;
    const char* Box;
    const char* Text;
    bool Refused;
    bool Asks;
};

class ChangedFlag : public SchemeEditor, public testing::WithParamInterface<FlagCase> {};

TEST_P(ChangedFlag, IsSetByLeavingAField) {
    OpenPanel(6);
    if (GetParam().Refused) {
        Screen.Answer(MessageAnswer::Ok);
    }
    Enter(QString::fromUtf8(GetParam().Box), QString::fromUtf8(GetParam().Text));
    if (GetParam().Refused) {
        C<QLineEdit>(QString::fromUtf8(GetParam().Box))->setText(QString());
        Screen.Messages.clear();
    }
    if (GetParam().Asks) {
        Screen.Answer(MessageAnswer::No);
    }
    Click("cmdPrefSave");
    EXPECT_EQ(Titles(), GetParam().Asks ? QStringLiteral("SAVE SCHEME") : QString());
    EXPECT_FALSE(IsOpen());
}

INSTANTIATE_TEST_SUITE_P(Fields, ChangedFlag,
                         testing::Values(FlagCase{"Symbol", "txtABCChr(2)", "x", false, true},
                                         FlagCase{"RefusedSymbol", "txtABCChr(2)", ",", true, true},
                                         FlagCase{"Value", "txtABCVal(2)", "54", false, true},
                                         FlagCase{"Heading", "txtABCHeading", "Level", false, false}),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST_F(SchemeEditor, SaveOfTheWindowMaySaveTheSchemeFirst) {
    OpenPanel(6);
    Choose(QStringLiteral("cboABCLevels"), QStringLiteral("2"));
    Enter(QStringLiteral("txtABCChr(1)"), QStringLiteral("P"));
    Enter(QStringLiteral("txtABCHeading"), QStringLiteral("Pass"));
    Screen.Answer(MessageAnswer::Yes);
    Screen.AnswerFile(QString::fromUtf8(File));
    Click("cmdPrefSave");
    EXPECT_EQ(
        Screen.Messages[0].Text,
        QStringLiteral("You have made some changes to the currrent Grade / Level Scheme that have not been saved. "
                       "\n\nDo you want to save them now?"));
    EXPECT_EQ(Screen.Messages[0].Icon, MessageIcon::Question);
    EXPECT_EQ(Screen.Messages[0].Buttons, MessageButtons::YesNo);
    EXPECT_EQ(MsgAnswer, 6);
    EXPECT_EQ(Machine.Read(QString::fromUtf8(File)), HandWritten("options/two-levels.scm"));
    EXPECT_EQ(Saved(), Base());
}

TEST_F(SchemeEditor, SettingsAreSavedAlsoWhenTheSchemeIsNot) {
    OpenPanel(6);
    Enter(QStringLiteral("txtABCChr(1)"), QString());
    Screen.Answer(MessageAnswer::Yes);
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdPrefSave");
    EXPECT_EQ(Titles(), QStringLiteral("SAVE SCHEME|SCHEME ERROR"));
    EXPECT_EQ(Saved(), Base());

    OpenPanel(6);
    Enter(QStringLiteral("txtABCChr(1)"), QStringLiteral("x"));
    Screen.Answer(MessageAnswer::Yes);
    Screen.AnswerFile(QString());
    Click("cmdPrefSave");
    EXPECT_FALSE(IsOpen());
}

TEST_F(SchemeEditor, SuccessfulSaveSchemeClearsTheFlagAndACancelledOneDoesNot) {
    OpenPanel(6);
    Enter(QStringLiteral("txtABCChr(1)"), QStringLiteral("x"));
    SaveFile(File);
    Click("cmdPrefSave");
    EXPECT_EQ(Titles(), QString());

    OpenPanel(6);
    Enter(QStringLiteral("txtABCChr(1)"), QStringLiteral("x"));
    SaveFile("");
    Screen.Answer(MessageAnswer::No);
    Click("cmdPrefSave");
    EXPECT_EQ(Titles(), QStringLiteral("SAVE SCHEME"));
}

TEST_F(SchemeEditor, CheckNamesProblemsAndColoursFields) {
    OpenPanel(6);
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdABCCheck");
    EXPECT_EQ(Screen.Messages[0].Title, QStringLiteral("LEVELS CHECK"));
    EXPECT_EQ(Screen.Messages[0].Text, QStringLiteral("No problems found."));
    EXPECT_EQ(Screen.Messages[0].Icon, MessageIcon::Information);
    Enter(QStringLiteral("txtABCChr(2)"), QString());
    Enter(QStringLiteral("txtABCVal(5)"), QStringLiteral("60"));
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdABCCheck");
    EXPECT_EQ(
        Screen.Messages[1].Text,
        QStringLiteral("The following problems were found: \n\n"
                       "  -> Position 3 does not have a symbol and/or a value.\n\n\n"
                       "  -> The value at position 6 (60) is LESS than or EQUAL to the value at position 5 (60)\n"));
    EXPECT_EQ(ColourOf(Symbol(2)), Pink);
    EXPECT_EQ(ColourOf(Value(2)), White);
    EXPECT_EQ(ColourOf(Value(4)), Pink);
    EXPECT_EQ(ColourOf(Value(5)), Pink);
    EXPECT_EQ(ColourOf(Value(6)), White);
    EXPECT_EQ(ColourOf(Symbol(13)), Cyan);
    EXPECT_EQ(Symbol(2)->palette().color(QPalette::Text), QColor(Qt::black));
}

TEST_F(SchemeEditor, ClearKeepsHeadingAndLevels) {
    OpenPanel(6);
    Click("cmdClearScheme");
    EXPECT_EQ(Heading(), QStringLiteral("ABC"));
    EXPECT_EQ(Levels()->currentText(), QStringLiteral("13"));
    EXPECT_EQ(TextOf("lblABCLow"), QStringLiteral("For the lowest symbol use:"));
    for (int p = 0; p <= 18; ++p) {
        EXPECT_EQ(Symbol(p)->text() + Value(p)->text(), QString()) << p;
        EXPECT_EQ(ColourOf(Symbol(p)), p <= 12 ? Yellow : Cyan) << p;
    }
}

TEST_F(SchemeEditor, ClearMovesNothingInEitherEdition) {
    for (const Edition edition : {Edition::English, Edition::French}) {
        Start(Base(), edition);
        OpenPanel(6);
        QCoreApplication::processEvents();
        const QPoint before = Symbol(0)->mapTo(Window.get(), QPoint());
        Click("cmdClearScheme");
        QCoreApplication::processEvents();
        EXPECT_EQ(Symbol(0)->mapTo(Window.get(), QPoint()), before);
        EXPECT_EQ(Window->size(), QSize(800, 600));
        const auto* low = C<QLabel>(QStringLiteral("lblABCLow"));
        EXPECT_LE(low->sizeHint().width(), low->width());
    }
}

TEST_F(SchemeEditor, SaveRefusesAFaultyScheme) {
    OpenPanel(6);
    Enter(QStringLiteral("txtABCVal(12)"), QStringLiteral("85"));
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdSaveScheme");
    EXPECT_EQ(Screen.Messages[0].Title, QStringLiteral("SCHEME ERROR"));
    EXPECT_EQ(
        Screen.Messages[0].Text,
        QStringLiteral("The following problems were found: \n\n  -> The value at position 13 (85) is LESS than or "
                       "EQUAL to the value at position 12 (85)\n\n\nPlease correct and try again."));
    EXPECT_TRUE(Screen.FileDialogs.empty());
}

TEST_F(SchemeEditor, NeverReachesTheSettings) {
    OpenPanel(6);
    const ProgramConfigRecord before = ProgramConfig;
    Load(HandWritten("options/level.scm"));
    Click("cmdPrefSave");
    EXPECT_EQ(ProgramConfig, before);
    EXPECT_EQ(Saved(), Base());
}

TEST_F(SchemeEditor, FrenchEditionHasItsOwnLowestLabel) {
    Start(Base(), Edition::French);
    OpenPanel(6);
    EXPECT_EQ(TextOf("lblABCLow"), QStringLiteral("Pour 0 à 49,9% utiliser :"));
    Enter(QStringLiteral("txtABCVal(1)"), QStringLiteral("40"));
    EXPECT_EQ(TextOf("lblABCLow"), QStringLiteral("Pour 0 à 39,9% utiliser :"));
    Load(HandWritten("options/level.scm"));
    EXPECT_EQ(TextOf("lblABCLow"), QStringLiteral("Pour 0 à 49,9% utiliser :"));
}

} // namespace
