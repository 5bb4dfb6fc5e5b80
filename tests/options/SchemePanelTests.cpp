#include "options/SchemeFields.h"
#include "tests/options/SetupFixture.h"

namespace {

const char File[] = "c:\\other\\new.scm";

class SchemeEditor : public SetupTest {
protected:
    QLineEdit* Symbol(int p) { return C<QLineEdit>(QStringLiteral("txtABCChr(%1)").arg(p)); }
    QLineEdit* Value(int p) { return C<QLineEdit>(QStringLiteral("txtABCVal(%1)").arg(p)); }
    QComboBox* Levels() { return C<QComboBox>(QStringLiteral("cboABCLevels")); }
    QString Heading() { return C<QLineEdit>(QStringLiteral("txtABCHeading"))->text(); }
    static QColor ColourOf(const QLineEdit* box) {
        return box->palette().color(box->isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Base);
    }
    // "F/0 D-/50 ...", all active pairs.
    QString Scheme() {
        QStringList pairs;
        for (int p = 0; p <= Levels()->currentIndex() + 1; ++p) {
            pairs.append(Symbol(p)->text() + u'/' + Value(p)->text());
        }
        return pairs.join(u' ');
    }
    void Load(const QByteArray& bytes) {
        Machine.Write(QString::fromUtf8(File), bytes);
        LoadFile(File);
    }
    void LoadFile(const char* name) {
        Screen.AnswerFile(QString::fromUtf8(name));
        Click("cmdLoadScheme");
    }
    void SaveFile(const char* name) {
        Screen.AnswerFile(QString::fromUtf8(name));
        Click("cmdSaveScheme");
    }
};

const QColor White(255, 255, 255);
const QColor Yellow(255, 255, 128);
const QColor Cyan(192, 255, 255);
const QColor Pink(255, 128, 255);

const char DefaultScheme[] = "F/0 D-/50 D/53 D+/57 C-/60 C/63 C+/67 B-/70 B/73 B+/77 A-/80 A/85 A+/90";

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

TEST_F(SchemeEditor, LoadFillsTheEditor) {
    OpenPanel(6);
    Load(HandWritten("options/level.scm"));
    EXPECT_EQ(Scheme(), QStringLiteral("R/0 1/50 2/60"));
    EXPECT_EQ(Heading(), QStringLiteral("Level"));
    EXPECT_EQ(TextOf("lblABCLow"), QStringLiteral("For 0 to 49.9% use:"));
    EXPECT_EQ(ColourOf(Symbol(2)), White);
    EXPECT_EQ(ColourOf(Symbol(3)), Cyan);
    const FileDialog& dialog = Screen.FileDialogs[0];
    EXPECT_EQ(dialog.DialogKind, FileDialog::Kind::Open);
    EXPECT_EQ(dialog.Title, QStringLiteral("Load a Scheme"));
    EXPECT_EQ(dialog.Filter, QStringLiteral("Schemes (*.scm)|*.scm"));
    EXPECT_EQ(dialog.DefaultExtension, QStringLiteral(".scm"));
    SaveFile("c:\\other\\again.scm");
    EXPECT_EQ(Machine.Read(QStringLiteral("c:\\other\\again.scm")), HandWritten("options/level.scm"));
}

TEST_F(SchemeEditor, TwentyFivePairsLoadNineteen) {
    QByteArray file = "\"H\",\"c\"\r\n";
    for (int p = 0; p < 25; ++p) {
        file += "\"" + QByteArray::number(p) + "\",\"" + QByteArray::number(p) + "\"\r\n";
    }
    OpenPanel(6);
    Load(file);
    EXPECT_EQ(Levels()->currentText(), QStringLiteral("19"));
    EXPECT_EQ(Value(18)->text(), QStringLiteral("18"));
    EXPECT_EQ(Titles(), QString());
}

TEST_F(SchemeEditor, LoadedTextsStayAsTheyStandInTheFile) {
    const QByteArray file =
        "\"N,iv\xE9\",\" <- Heading for General Analysis columns\"\r\n\"a,b\",\"0\"\r\n\"\xC9\",\"0050\"\r\n";
    OpenPanel(6);
    Load(file);
    EXPECT_EQ(Scheme(), QString::fromUtf8("a,b/0 É/0050"));
    EXPECT_EQ(Heading(), QString::fromUtf8("N,ivé"));
    SaveFile("c:\\other\\again.scm");
    EXPECT_EQ(Machine.Read(QStringLiteral("c:\\other\\again.scm")), file);
}

TEST_F(SchemeEditor, QuoteFromAFileIsRefusedBeforeItSpoilsAnother) {
    OpenPanel(6);
    Load("H,c\r\nF,0\r\na\"b,50\r\n");
    EXPECT_EQ(Scheme(), QStringLiteral("F/0 a\"b/50"));
    Screen.Answer(MessageAnswer::Ok);
    Click("cmdSaveScheme");
    EXPECT_EQ(Titles(), QStringLiteral("INPUT ERROR"));
    EXPECT_TRUE(Symbol(1)->hasFocus());
}

struct BadFile {
    const char* Name;
    QByteArray Bytes;
    const char* Title;
};

class BadSchemeFile : public SchemeEditor, public testing::WithParamInterface<BadFile> {};

TEST_P(BadSchemeFile, LeavesTheEditorAsItWas) {
    OpenPanel(6);
    Screen.Answer(MessageAnswer::Ok);
    Load(GetParam().Bytes);
    EXPECT_EQ(Titles(), QString::fromUtf8(GetParam().Title));
    EXPECT_EQ(Screen.Messages[0].Icon, MessageIcon::Critical);
    EXPECT_EQ(Scheme(), QString::fromUtf8(DefaultScheme));
    EXPECT_EQ(Heading(), QStringLiteral("ABC"));
}

INSTANTIATE_TEST_SUITE_P(
    Files, BadSchemeFile,
    testing::Values(BadFile{"Empty", "", "LOAD SCHEME ERROR: 62"},
                    BadFile{"HeadingOnly", "\"H\",\"c\"\r\n", "LOAD SCHEME ERROR: 62"},
                    BadFile{"OnePair", "\"H\",\"c\"\r\n\"F\",\"0\"\r\n", "INVALID DATA"},
                    BadFile{"Value100", "\"H\",\"c\"\r\n\"F\",\"0\"\r\n\"P\",\"100\"\r\n", "INVALID DATA"},
                    BadFile{"FourCharacters", "\"H\",\"c\"\r\n\"F\",\"0\"\r\n\"Pass\",\"50\"\r\n", "INVALID DATA"}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST_F(SchemeEditor, FilesThatCannotBeReadAreReported) {
    OpenPanel(6);
    Machine.MakeFolder(QStringLiteral("c:\\other\\folder.scm"));
    struct Row {
        const char* Name;
        int Number;
        const char* Description;
    };
    for (const Row& row :
         {Row{"c:\\other\\missing.scm", 53, "File not found"}, Row{"c:\\nowhere\\x.scm", 76, "Path not found"},
          Row{"c:\\other\\folder.scm", 75, "Path/File access error"}}) {
        Screen.Answer(MessageAnswer::Ok);
        LoadFile(row.Name);
        EXPECT_EQ(Screen.Messages.back().Title, QStringLiteral("LOAD SCHEME ERROR: %1").arg(row.Number));
        EXPECT_EQ(Screen.Messages.back().Text,
                  QStringLiteral("Can't Load: %1\n\nThe error is: %2\n\nThis file may be UNUSABLE!!")
                      .arg(QString::fromUtf8(row.Name), QString::fromUtf8(row.Description)));
    }
    LoadFile("");
    EXPECT_EQ(Screen.Messages.size(), 3U);
    EXPECT_EQ(Scheme(), QString::fromUtf8(DefaultScheme));
}

TEST_F(SchemeEditor, SaveAsksBeforeItOverwritesAndReportsFailures) {
    OpenPanel(6);
    Machine.MakeFolder(QStringLiteral("c:\\other\\folder.scm"));
    Screen.Answer(MessageAnswer::Ok);
    SaveFile("c:\\other\\folder.scm");
    EXPECT_EQ(Screen.Messages[0].Title, QStringLiteral("SAVE SCHEME ERROR: 75"));
    EXPECT_EQ(Screen.Messages[0].Text,
              QStringLiteral("Can't Save: c:\\other\\folder.scm\n\nThe error is: Path/File access error"));
    const FileDialog& dialog = Screen.FileDialogs[0];
    EXPECT_EQ(dialog.DialogKind, FileDialog::Kind::Save);
    EXPECT_EQ(dialog.Title, QStringLiteral("Save Scheme"));
    EXPECT_TRUE(dialog.OverwritePrompt);
    EXPECT_EQ(dialog.DefaultExtension, QStringLiteral(".scm"));
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
