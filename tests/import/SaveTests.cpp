#include "tests/import/ImportWindow.h"

namespace {

class SaveTest : public ImportWindowTest {
protected:
    const QString olderConfig = Text("c:\\Gradewell\\GW_v11_PRG.CFG");
    const QString newerConfig = Text("c:\\Gradewell\\GW_v12_PRG.CFG");

    bool ConfigWritten() const { return folder.Exists(olderConfig) || folder.Exists(newerConfig); }
    /// The lines of the configuration file from the import section on.
    QByteArray ImportSection() const {
        const QByteArray bytes = folder.Read(newerConfig);
        EXPECT_EQ(folder.Read(olderConfig), bytes);
        const qsizetype start = bytes.indexOf("\"[Import Students]\"");
        return bytes.mid(start, bytes.indexOf("[Date Format]") - start);
    }
    static void ExpectEmptyList() {
        for (const QString& entry : ProgramConfig.ImportFields) {
            EXPECT_EQ(QString(), entry);
        }
    }
};

TEST_F(SaveTest, WritesTheSetupAndBothConfigurationFiles) {
    OpenWith("Smith,John,x,03071999,M");
    DoubleClick({LastNameField, FirstNameField, IgnoreField, DobField});
    window->cboDOB->setCurrentIndex(4);
    for (const char* box : {"chkCLUpd(0)", "chkCLUpd(2)", "chkCLUpdFields(3)", "chkCLUpdFields(11)"}) {
        Click(box);
    }
    Click("cmdSave");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(QDialog::Accepted, window->result());
    EXPECT_EQ(HandWritten("import/UpdField-saved.cfg"), folder.Read(setupFile));
    EXPECT_EQ(QByteArray("\"[Import Students]\"\r\n\"c:\\School\\Students.txt\"\r\n4\r\n\"4\"\r\n\"Last Name\"\r\n"
                         "\"First Name\"\r\n\"Ignore this field\"\r\n\"DOB (MMDDYear)\"\r\n\"\"\r\n"),
              ImportSection());
    EXPECT_TRUE(Messages().empty());
    const UpdateOptions expected = {{1, 0, 1, 0}, {0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 1}};
    EXPECT_EQ(expected, ImportUpdateOptions);
}

TEST_F(SaveTest, SavingWhatWasOpenedGivesTheSameBytes) {
    const QByteArray bytes = HandWritten("import/UpdField-full.cfg");
    folder.Write(setupFile, bytes);
    OpenWith(QByteArray("x\t").repeated(24));
    Click("cmdSave");
    EXPECT_EQ(bytes, folder.Read(setupFile));
    EXPECT_EQ(Text("4"), ProgramConfig.ImportFields[0]);
    EXPECT_EQ(24, ProgramConfig.ImportFieldLast);
}

TEST_F(SaveTest, EmptiesTheEntriesBehindTheMatches) {
    ProgramConfig.ImportFields.fill(Text("old"));
    OpenWith("a,b,c");
    DoubleClick({FirstNameField, LastNameField});
    Click("cmdSave");
    EXPECT_EQ(2, ProgramConfig.ImportFieldLast);
    EXPECT_EQ(Text("0"), ProgramConfig.ImportFields[0]);
    EXPECT_EQ(Text("First Name"), ProgramConfig.ImportFields[1]);
    EXPECT_EQ(QString(), ProgramConfig.ImportFields[3]);
    EXPECT_EQ(QString(), ProgramConfig.ImportFields[24]);
}

TEST_F(SaveTest, NeedsBothNames) {
    for (const int field : {LastNameField, FirstNameField, 3}) {
        OpenWith("a,b,c");
        DoubleClick(field);
        Click("chkCLUpd(3)");
        ProgramConfig.ImportFields.fill(Text("old"));
        folder.Screen.Answer(MessageAnswer::Ok);
        Click("cmdSave");
        EXPECT_EQ(Text("IMPORT ERROR"), Messages().back().Title);
        EXPECT_EQ(Text("You must specify the field for Last Name and First Name."), Messages().back().Text);
        EXPECT_EQ(MessageIcon::Critical, Messages().back().Icon);
        EXPECT_EQ(MessageButtons::Ok, Messages().back().Buttons);
        EXPECT_TRUE(window->isVisible());
        EXPECT_FALSE(folder.Exists(setupFile));
        EXPECT_FALSE(ConfigWritten());
        EXPECT_EQ(1, ProgramConfig.ImportFieldLast); // the record holds the new values all the same
        EXPECT_EQ(Text("0"), ProgramConfig.ImportFields[0]);
        EXPECT_NE(QString(), ProgramConfig.ImportFields[1]);
        EXPECT_EQ(QString(), ProgramConfig.ImportFields[2]);
        EXPECT_TRUE(Control<QCheckBox>("chkCLUpd(3)")->isChecked());
        ImportUpdateOptions = UpdateOptions();
    }
}

TEST_F(SaveTest, YesWithoutMatchesRemovesTheSetup) {
    folder.Write(setupFile, HandWritten("import/UpdField-three.cfg"));
    OpenWith("a,b,c");
    Click("cmdClearAll");
    folder.Screen.Answer(MessageAnswer::Yes);
    Click("cmdSave");
    ASSERT_EQ(1U, Messages().size());
    EXPECT_EQ(Text("DO NOT SETUP IMPORT FILE"), Messages()[0].Title);
    EXPECT_EQ(Text("Warning! Since no Field Matches have been made, the import file will not be 'Setup' for "
                   "teachers.\n\nDo you want to exit any way?"),
              Messages()[0].Text);
    EXPECT_EQ(MessageButtons::YesNo, Messages()[0].Buttons);
    EXPECT_EQ(MessageIcon::Critical, Messages()[0].Icon);
    EXPECT_EQ(static_cast<int>(MessageAnswer::Yes), MsgAnswer);
    EXPECT_FALSE(folder.Exists(setupFile));
    EXPECT_EQ(QString(), ProgramConfig.ImportStudentsFile);
    EXPECT_TRUE(ImportSection().startsWith("\"[Import Students]\"\r\n\"\"\r\n"));
    EXPECT_FALSE(window->isVisible());
    ExpectEmptyList();
}

TEST_F(SaveTest, NoWithoutMatchesKeepsTheWindow) {
    const QByteArray bytes = HandWritten("import/UpdField-three.cfg");
    folder.Write(setupFile, bytes);
    OpenWith("a,b,c");
    Click("cmdClearAll");
    folder.Screen.Answer(MessageAnswer::No);
    Click("cmdSave");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(bytes, folder.Read(setupFile));
    EXPECT_FALSE(ConfigWritten());
    EXPECT_EQ(path, ProgramConfig.ImportStudentsFile);
    EXPECT_EQ(3, ProgramConfig.ImportFieldLast);
    ExpectEmptyList();
}

TEST_F(SaveTest, SaveWorksForAFileWithoutASetup) {
    OpenWith("a,b");
    EXPECT_TRUE(window->cmdSave->isEnabled());
    folder.Screen.Answer(MessageAnswer::Yes);
    Click("cmdSave");
    EXPECT_FALSE(window->isVisible());
}

TEST_F(SaveTest, AFailedWriteKeepsWindowOldFileAndConfiguration) {
    const QByteArray old = HandWritten("import/UpdField-three.cfg");
    folder.Write(setupFile, old);
    OpenWith("a,b,c");
    calls.WriteFailure = ENOSPC;
    folder.Screen.Answer(MessageAnswer::Ok);
    Click("cmdSave");
    ASSERT_EQ(1U, Messages().size());
    EXPECT_EQ(Text("UpdField.cfg SAVE ERROR: 61"), Messages()[0].Title);
    EXPECT_EQ(Text("Unexpected Error while trying to save: UpdField.cfg\n\nDisk full"), Messages()[0].Text);
    EXPECT_EQ(MessageIcon::Critical, Messages()[0].Icon);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(old, folder.Read(setupFile));
    EXPECT_EQ(QStringList({Text("Students.txt"), Text("UpdField.cfg")}), folder.Names(Text("c:\\School")));
    EXPECT_FALSE(ConfigWritten());
    calls.WriteFailure = 0;
    Click("cmdSave");
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(ConfigWritten());
}

TEST_F(SaveTest, CancelEscapeAndCloseSaveNothing) {
    const std::function<void()> ways[] = {[this] { Click("cmdExitImport"); },
                                          [this] { QTest::keyClick(window.get(), Qt::Key_Escape); },
                                          [this] { window->close(); }};
    for (const auto& way : ways) {
        OpenWith("a,b,c");
        DoubleClick(LastNameField); // a save would complain
        const ProgramConfigRecord before = ProgramConfig;
        way();
        EXPECT_FALSE(window->isVisible());
        EXPECT_EQ(QDialog::Rejected, window->result());
        EXPECT_EQ(before, ProgramConfig);
        EXPECT_FALSE(folder.Exists(setupFile));
        EXPECT_FALSE(ConfigWritten());
    }
}

} // namespace
