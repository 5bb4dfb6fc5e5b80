#include "tests/options/SchemeEditorFixture.h"

namespace {

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

TEST_F(SchemeEditor, EditedTextFromAFileIsNoLongerThanATypedOne) {
    OpenPanel(6);
    Load("\"H\",\"c\"\r\n\"F\",\"0\"\r\n\"P\",\"0050\"\r\n");
    QTest::mouseClick(Value(1), Qt::LeftButton);
    QTest::keyClick(Value(1), Qt::Key_Home);
    QTest::keyClick(Value(1), Qt::Key_9);
    EXPECT_EQ(Value(1)->text(), QStringLiteral("0050")) << "there is no room for another digit";
    QTest::keyClick(Value(1), Qt::Key_Delete);
    EXPECT_EQ(Value(1)->text(), QStringLiteral("05"));
    QTest::keyClick(Value(1), Qt::Key_9);
    EXPECT_EQ(Value(1)->text(), QStringLiteral("05"));
}

TEST_F(SchemeEditor, DialogsOpenInTheProgramFolderAndThenWhereTheLastSchemeWas) {
    OpenPanel(6);
    SaveFile("");
    EXPECT_EQ(Screen.FileDialogs.back().FileName, QStringLiteral("c:\\gradewell\\"));
    SaveFile(File);
    LoadFile("");
    EXPECT_EQ(Screen.FileDialogs.back().FileName, QStringLiteral("c:\\other\\"));
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

} // namespace
