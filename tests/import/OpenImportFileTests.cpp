#include "tests/import/ImportWindow.h"
#include "tests/support/Text.h"

namespace {

using OpenImportFileTest = ImportWindowTest;

TEST_F(OpenImportFileTest, ShowsTheFirstRecordOfTheSetUpFile) {
    OpenWith("Smith,John,M\r\nJones,Ann,F\r\n");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(Text("Gradewell 2016 Config - IMPORT FILE SETUP"), window->windowTitle());
    EXPECT_EQ(path, Label("lblFileName"));
    EXPECT_EQ(path, ProgramConfig.ImportStudentsFile);
    EXPECT_EQ(List(" 1| 2| 3"), Column(0));
    EXPECT_EQ(List("Smith|John|M"), Column(1));
    EXPECT_EQ(List("||"), Column(2));
    EXPECT_EQ(Text("Matched: 0 of 3"), Label("lblMatched"));
    EXPECT_EQ(Text("Record 1 of 2"), Label("lblRecordCount"));
    EXPECT_TRUE(Find("lblRecordCount")->isVisible());
    EXPECT_TRUE(Find("spnRecords")->isVisible());
    EXPECT_TRUE(Find("lblMatched")->isVisible());
    EXPECT_TRUE(Find("grdImport")->isVisible());
    EXPECT_FALSE(Find("imgLoading")->isVisible());
    EXPECT_FALSE(Find("prgLoading")->isVisible());
    EXPECT_TRUE(folder.Screen.FileDialogs.empty());
    EXPECT_GE(folder.Screen.PendingEventRounds, 2);
}

TEST_F(OpenImportFileTest, ShowsNeitherRecordNorPictureBeforeItIsActive) {
    folder.Write(path, "a,b");
    ProgramConfig.ImportStudentsFile = path;
    window = std::make_unique<frmImport_SU>();
    window->show();
    for (const char* name : {"spnRecords", "lblRecordCount", "imgLoading", "prgLoading", "lblNotice"}) {
        EXPECT_FALSE(Find(name)->isVisible()) << name;
    }
    QCoreApplication::sendPostedEvents(window.get(), QEvent::MetaCall);
    EXPECT_TRUE(Find("lblRecordCount")->isVisible());
}

TEST_F(OpenImportFileTest, AsksForAFileWhenNoneIsSetUp) {
    folder.Write(path, "a\tb");
    folder.Screen.AnswerFile(path);
    Show();
    ASSERT_EQ(1U, folder.Screen.FileDialogs.size());
    const FileDialog& dialog = folder.Screen.FileDialogs[0];
    EXPECT_EQ(FileDialog::Kind::Open, dialog.DialogKind);
    EXPECT_EQ(Text("Open an Import File"), dialog.Title);
    EXPECT_EQ(Text("All Files (*.*)|*.*"), dialog.Filter);
    EXPECT_TRUE(dialog.FileMustExist);
    EXPECT_EQ(path, ProgramConfig.ImportStudentsFile);
    EXPECT_EQ(List("a|b"), Column(1));
}

TEST_F(OpenImportFileTest, ClosesWhenTheFirstDialogIsCancelled) {
    folder.Screen.AnswerFile(QString());
    Show();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(QDialog::Rejected, window->result());
    EXPECT_EQ(QString(), ProgramConfig.ImportStudentsFile);
}

TEST_F(OpenImportFileTest, ActivatesOnceForEachShowing) {
    folder.Write(setupFile, "ActiveFields=1\nField1=nobody\n");
    folder.Screen.Answer(MessageAnswer::Ok);
    OpenWith("a,b");
    folder.Screen.AnswerFile(QString());
    Click("cmdOpen");
    QCoreApplication::processEvents();
    EXPECT_EQ(1U, Messages().size());
    EXPECT_EQ(1U, folder.Screen.FileDialogs.size());
    EXPECT_TRUE(window->isVisible());
    window->hide();
    folder.Screen.Answer(MessageAnswer::Ok);
    window->show();
    QCoreApplication::sendPostedEvents(window.get(), QEvent::MetaCall);
    EXPECT_EQ(2U, Messages().size());
}

TEST_F(OpenImportFileTest, CancellingALaterDialogChangesNothing) {
    OpenWith("Smith,John\nJones,Ann");
    DoubleClick({LastNameField, FirstNameField});
    Click("spnRecords.Next");
    const ProgramConfigRecord before = ProgramConfig;
    folder.Screen.AnswerFile(QString());
    Click("cmdOpen");
    EXPECT_EQ(before, ProgramConfig);
    EXPECT_EQ(path, Label("lblFileName"));
    EXPECT_EQ(Text("Record 2 of 2"), Label("lblRecordCount"));
    EXPECT_EQ(List(" <-- Last Name| <-- First Name"), Column(2));
}

TEST_F(OpenImportFileTest, OpeningByTheDialogClearsTheMatchListFirst) {
    ProgramConfig.ImportFields.fill(Text("old"));
    ProgramConfig.ImportFieldLast = 24;
    folder.Write(Text("c:\\other\\new.txt"), "a,b,c");
    folder.Write(setupFile, "ActiveFields=1\nField1=Last Name\n");
    OpenWith("Smith,John");
    EXPECT_EQ(Text("old"), ProgramConfig.ImportFields[0]); // lives in the configuration file only
    EXPECT_EQ(List(" <-- Last Name|"), Column(2));
    folder.Screen.AnswerFile(Text("c:\\other\\new.txt"));
    Click("cmdOpen");
    EXPECT_EQ(path, folder.Screen.FileDialogs.back().FileName); // the dialog begins beside the file shown
    EXPECT_EQ(QStringList({QString(), QString(), QString()}), Column(2));
    EXPECT_EQ(0, ProgramConfig.ImportFieldLast);
    for (const QString& entry : ProgramConfig.ImportFields) {
        EXPECT_EQ(QString(), entry);
    }
    EXPECT_TRUE(Field(LastNameField)->isEnabled());
    EXPECT_EQ(Text("Matched: 0 of 3"), Label("lblMatched"));
    EXPECT_EQ(Text("c:\\other\\new.txt"), ProgramConfig.ImportStudentsFile);
}

TEST_F(OpenImportFileTest, ShowsTheMatchesOfTheSetupFile) {
    folder.Write(setupFile, HandWritten("import/UpdField-full.cfg"));
    QByteArray record;
    for (int field = 1; field <= 24; ++field) {
        record += QByteArray::number(field) + "\t";
    }
    OpenWith(record + "\r\n");
    EXPECT_EQ(Text("Matched: 24 of 24"), Label("lblMatched"));
    EXPECT_EQ(Text(" <-- DOB (MMDDYear)"), Cell(6, 2));
    EXPECT_EQ(Text(" <-- Ignore this field"), Cell(23, 2));
    EXPECT_EQ(4, window->cboDOB->currentIndex());
    EXPECT_EQ(Text("DOB (MMDDYear)"), Field(DobField)->text());
    for (int field = 1; field <= FieldCount; ++field) {
        EXPECT_EQ(field == IgnoreField, Field(field)->isEnabled()) << field;
        EXPECT_EQ(field != IgnoreField, Field(field)->font().bold()) << field;
    }
    EXPECT_TRUE(window->cmdSave->isEnabled());
    EXPECT_TRUE(Control<QCheckBox>("chkCLUpd(1)")->isChecked());
    EXPECT_FALSE(Control<QCheckBox>("chkCLUpd(0)")->isChecked());
    EXPECT_TRUE(Control<QCheckBox>("chkCLUpdFields(11)")->isChecked());
    EXPECT_FALSE(Control<QCheckBox>("chkCLUpdFields(1)")->isChecked());
}

TEST_F(OpenImportFileTest, LowersTheMatchCountToTheFieldCount) {
    folder.Write(setupFile, "ActiveFields=6\nField1=Last Name\nField2=First Name\nField3=Gender\nField4=Program\n"
                            "Field5=Home Form\nField6=Special Use\n");
    OpenWith("a,b,c,d");
    EXPECT_EQ(4, ProgramConfig.ImportFieldLast);
    EXPECT_EQ(Text("Matched: 4 of 4"), Label("lblMatched"));
    EXPECT_TRUE(Field(5)->isEnabled());
}

TEST_F(OpenImportFileTest, ShowsTheUncheckedEntriesOfASetupFileThatFailsPartWay) {
    folder.Write(setupFile, "ActiveFields=25\nField1=nobody\nField2=Last Name\nAddNames=99999\nField3=Gender\n");
    ProgramConfig.ImportFields[3] = Text("old");
    ImportUpdateOptions.Actions[0] = 1;
    OpenWith("a,b,c");
    EXPECT_EQ(List(" <-- nobody| <-- Last Name| <-- old"), Column(2));
    EXPECT_EQ(Text("Matched: 3 of 3"), Label("lblMatched"));
    EXPECT_EQ(3, ProgramConfig.ImportFieldLast);
    EXPECT_FALSE(Field(LastNameField)->isEnabled());
    EXPECT_TRUE(Control<QCheckBox>("chkCLUpd(0)")->isChecked());
}

TEST_F(OpenImportFileTest, KeepsNoCountThatTheSettingsHaveNoRoomFor) {
    const struct {
        const char* count;
        int kept;
    } rows[] = {{"25", 24}, {"32767", 24}, {"-3", 0}};
    for (const auto& row : rows) {
        folder.Write(setupFile, QByteArray("ActiveFields=") + row.count + "\nAddNames=99999\n");
        folder.Screen.Answer(MessageAnswer::Ok);
        OpenWith(""); // a first record would lower the count
        EXPECT_EQ(row.kept, ProgramConfig.ImportFieldLast) << row.count;
        EXPECT_EQ(Text("Matched: 0 of 0"), Label("lblMatched"));
    }
}

TEST_F(OpenImportFileTest, KeepsTheTicksWithoutASetupFile) {
    ImportUpdateOptions.Actions = {1, 0, 7, 1};
    OpenWith("a,b");
    EXPECT_TRUE(Control<QCheckBox>("chkCLUpd(0)")->isChecked());
    EXPECT_FALSE(Control<QCheckBox>("chkCLUpd(2)")->isChecked());
    EXPECT_EQ(0, ImportUpdateOptions.Actions[2]);
    Click("chkCLUpdFields(4)");
    folder.Screen.AnswerFile(path);
    Click("cmdOpen");
    EXPECT_TRUE(Control<QCheckBox>("chkCLUpd(0)")->isChecked());
    EXPECT_TRUE(Control<QCheckBox>("chkCLUpdFields(4)")->isChecked());
    folder.Write(setupFile, "AddNames=7\nLastName=1\n");
    folder.Screen.AnswerFile(path);
    Click("cmdOpen");
    EXPECT_FALSE(Control<QCheckBox>("chkCLUpd(0)")->isChecked());
    EXPECT_TRUE(Control<QCheckBox>("chkCLUpdFields(0)")->isChecked());
}

TEST_F(OpenImportFileTest, ShowsTheFaultsOneAfterAnotherAndThenTheList) {
    folder.Write(setupFile, "ActiveFields=4\nField1=Last Name\nField2=DOB (Yr/Mth/Day)\nField3=last name\nField4=?\n");
    for (int message = 0; message < 3; ++message) {
        folder.Screen.Answer(MessageAnswer::Ok, [this] { EXPECT_EQ(QString(), Label("lblFileName")); });
    }
    OpenWith("a,b,c,d");
    ASSERT_EQ(3U, Messages().size());
    const char* const starts[] = {"Invalid DOB format: DOB (Yr/Mth/Day)", "Duplicate Match Fields: last name",
                                  "? is not a valid field name."};
    for (int i = 0; i < 3; ++i) {
        const Message& message = Messages()[static_cast<std::size_t>(i)];
        EXPECT_EQ(Text("FIELD MATCH ERROR"), message.Title);
        EXPECT_EQ(Text(starts[i]) + Text("\n\nMatch Field #%1 has been changed to 'Ignore this field'.").arg(i + 2),
                  message.Text);
        EXPECT_EQ(MessageIcon::Critical, message.Icon);
        EXPECT_EQ(MessageButtons::Ok, message.Buttons);
    }
    EXPECT_EQ(List(" <-- Last Name| <-- Ignore this field| <-- Ignore this field| <-- Ignore this field"), Column(2));
}

TEST_F(OpenImportFileTest, TakesAPathAsChosenWithoutASetupFileForANameWithoutFolder) {
    ProgramConfig.ImportStudentsFile = Text("Students.txt");
    ProgramConfig.ImportFieldLast = 3;
    folder.Screen.Answer(MessageAnswer::Ok);
    Show();
    EXPECT_EQ(Text("Students.txt"), Label("lblFileName"));
    EXPECT_EQ(3, ProgramConfig.ImportFieldLast);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(OpenImportFileTest, TellsWhatCannotBeReadAndGoesOn) {
    folder.MakeFolder(Text("c:\\School\\Folder"));
    folder.Write(Text("c:\\School\\Empty.txt"), "");
    OpenWith("Smith,John");
    DoubleClick(LastNameField);
    const struct {
        const char* path;
        int number;
        const char* start;
    } cases[] = {{"c:\\School\\None.txt", 53, "Unexpected Error while trying to read: "},
                 {"c:\\None\\Students.txt", 76, "Unexpected Error while trying to read: "},
                 {"c:\\School\\Folder", 75, "Unexpected Error while trying to read: "},
                 {"c:\\School\\Empty.txt", 62, "The import file is empty: "}};
    for (const auto& row : cases) {
        folder.Screen.AnswerFile(Text(row.path));
        folder.Screen.Answer(MessageAnswer::Ok);
        Click("cmdOpen");
        const Message& message = Messages().back();
        EXPECT_EQ(Text("IMPORT ERROR: %1").arg(row.number), message.Title);
        EXPECT_TRUE(message.Text.startsWith(Text(row.start) + Text(row.path) + Text("\n\n"))) << row.path;
        EXPECT_EQ(Text(row.path), Label("lblFileName"));
        EXPECT_EQ(0, window->preview->grdImport->rowCount());
        EXPECT_EQ(229, window->preview->grdImport->height()); // an empty box
        EXPECT_FALSE(Find("spnRecords")->isVisible());
        EXPECT_FALSE(Find("imgLoading")->isVisible());
        EXPECT_TRUE(Field(LastNameField)->isEnabled());
        EXPECT_TRUE(window->isVisible());
    }
    EXPECT_EQ(4U, Messages().size());
    folder.Screen.AnswerFile(path);
    Click("cmdOpen");
    EXPECT_EQ(List("Smith|John"), Column(1));
    EXPECT_TRUE(Find("spnRecords")->isVisible());
}

TEST_F(OpenImportFileTest, ShowsAnEmptyFirstLineAsOneEmptyField) {
    OpenWith("\r\nSmith,John\r\n");
    EXPECT_EQ(QStringList({QString()}), Column(1));
    EXPECT_EQ(Text("Record 1 of 2"), Label("lblRecordCount"));
    EXPECT_EQ(Text("Matched: 0 of 1"), Label("lblMatched"));
}

TEST_F(OpenImportFileTest, LimitsTheGridsHeight) {
    const int heights[][2] = {{1, 17}, {3, 47}, {15, 227}, {16, 227}, {24, 227}};
    for (const auto& row : heights) {
        OpenWith(QByteArray("x,").repeated(row[0]));
        EXPECT_EQ(row[0], window->preview->grdImport->rowCount());
        EXPECT_EQ(row[1], window->preview->grdImport->height()) << row[0];
        EXPECT_LE(window->preview->grdImport->height(), 229);
    }
}

TEST_F(OpenImportFileTest, SaysThatAFileLooksLikeUtf8) {
    OpenWith("Andr\xC3\xA9,x\n");
    EXPECT_EQ(Text("This file looks like UTF-8. Accented letters will be wrong unless it is saved as Windows-1252."),
              Label("lblNotice"));
    EXPECT_EQ(Text("AndrÃ©"), Cell(0, 1));
    folder.Write(path, "Andr\xE9,x\n");
    folder.Screen.AnswerFile(path);
    Click("cmdOpen");
    EXPECT_EQ(QString(), Label("lblNotice"));
    EXPECT_EQ(Text("André"), Cell(0, 1));
}

} // namespace
