#include "tests/e2e/MenuSteps.h"
#include "tests/e2e/Screen.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

const QString Matched = QStringLiteral("lblMatched");
const QString SetupFile = QStringLiteral("school/UpdField.cfg");

QString FieldName(int field) {
    return QStringLiteral("lblFieldList(%1)").arg(field);
}

/// The import window of each edition's installed program; its words and its setup file are the same in both. A
/// folder of the school's holds the sample student data file; it is drive g: where drives are the program's own matter.
class ImportWindow : public testing::TestWithParam<std::string> {
protected:
    InstalledProgram Installed{NamesOf(GetParam())};
    const QString Menu = Installed.Edition.MenuTitle;
    const QString Window = Menu + QStringLiteral(" - IMPORT FILE SETUP");
    const QString Students = QStringLiteral("school/students.txt");
    const QString Shown = UnderWine() ? Installed.Native(Students) : QStringLiteral("g:\\students.txt");
    std::unique_ptr<RunningProgram> Program;

    ImportWindow() {
        Installed.MakeFolder(QStringLiteral("school"));
        const QString school = Installed.Folder() + QStringLiteral("/school");
        QFile::copy(QStringLiteral(E2E_SAMPLES "/students.txt"), school + QStringLiteral("/students.txt"));
        Installed.Write(QStringLiteral("drives.conf"), "G=" + school.toUtf8() + "\n");
    }

    void OpenStudents() {
        Program = StartToMenu(Installed);
        Program->Press(Menu, QStringLiteral("alt+i"));
        Program->ChooseFile(QStringLiteral("Open an Import File"), Installed.Native(Students));
        Program->AwaitText(Window, QStringLiteral("lblFileName"), Shown);
        Program->AwaitControl(Window, QStringLiteral("lblRecordCount"), QStringLiteral("to end the reading"),
                              [](const auto& it) { return it.Visible; });
        AwaitMatches(0);
    }

    /// Leaves by Save and compares the files with hand-written ones.
    void SaveAndCompare(const QByteArray& setup, const QByteArray& settings) {
        Program->Press(Window, QStringLiteral("alt+s"));
        Program->AwaitWindow(Menu);
        EXPECT_EQ(setup.toStdString(), Installed.Read(SetupFile).toStdString());
        AwaitBothFiles(*Program, Installed, QByteArray(settings).replace("g:\\students.txt", Shown.toLatin1()));
    }

    void AwaitMatches(int count) {
        Program->AwaitText(Window, Matched, QStringLiteral("Matched: %1 of 12").arg(count));
    }
    void DragToGrid(int field) { Program->Drag(Window, FieldName(field), QStringLiteral("grdImport")); }
    void DoubleClick(int field) { Program->DoubleClick(Window, FieldName(field)); }
};

INSTANTIATE_TEST_SUITE_P(Editions, ImportWindow, testing::Values("english", "french"),
                         [](const auto& tested) { return tested.param; });

TEST_P(ImportWindow, MatchesByEveryWayAndSavesToTheByte) {
    OpenStudents();
    DragToGrid(6);
    AwaitMatches(1);
    DoubleClick(1);
    AwaitMatches(2);
    Program->AwaitControl(Window, FieldName(1), QStringLiteral("to be used"),
                          [](const auto& it) { return !it.Enabled; });
    Program->DragInVain(Window, FieldName(1), QStringLiteral("grdImport"));
    DragToGrid(2);
    AwaitMatches(3);
    DoubleClick(4);
    AwaitMatches(4);
    DragToGrid(7);
    AwaitMatches(5);
    // The drag of the birth date gave the keyboard to the field below it.
    Program->AwaitControl(Window, FieldName(8), QStringLiteral("to take the keyboard"),
                          [](const auto& it) { return it.Focused; });
    Program->Press(Window, QStringLiteral("End"));
    Program->Press(Window, QStringLiteral("space"));
    AwaitMatches(6);
    Program->Click(Window, QStringLiteral("chkCLUpd(0)"));
    Program->Click(Window, QStringLiteral("chkCLUpdFields(4)"));
    Program->Click(Window, QStringLiteral("spnRecords.Next"));
    const QByteArray setup = Golden(QStringLiteral("import-UpdField.cfg"));
    const QByteArray settings = EditionGolden(Installed, "import");
    SaveAndCompare(setup, settings);

    // Opened again, the file comes with its matches; a box and another form of the birth dates change what they say.
    Program->Press(Menu, QStringLiteral("alt+i"));
    AwaitMatches(6);
    Program->Click(Window, QStringLiteral("chkCLUpdFields(11)"));
    Program->Press(Window, QStringLiteral("Tab"));
    Program->AwaitControl(Window, QStringLiteral("cboDOB"), QStringLiteral("to take the keyboard"),
                          [](const auto& it) { return it.Focused; });
    Program->Press(Window, QStringLiteral("End"));
    Program->Press(Window, QStringLiteral("Up"));
    Program->AwaitText(Window, FieldName(7), QStringLiteral("DOB (MMDDYear)"));
    SaveAndCompare(QByteArray(setup).replace("(Year/Mth/Day)", "(MMDDYear)").replace("SpecialUse=0", "SpecialUse=1"),
                   QByteArray(settings)
                       .replace("\"DOB (Year/Mth/Day)\"", "\"DOB (MMDDYear)\"")
                       .replace("\r\n6\r\n\"0\"\r\n", "\r\n6\r\n\"4\"\r\n"));
}

TEST_P(ImportWindow, ClearAllAndSaveRemoveTheSetup) {
    OpenStudents();
    DoubleClick(1);
    AwaitMatches(1);
    DoubleClick(2);
    AwaitMatches(2);
    Program->Press(Window, QStringLiteral("alt+s"));
    Program->AwaitWindow(Menu);
    EXPECT_TRUE(Installed.Exists(SetupFile));
    Program->Press(Menu, QStringLiteral("alt+i"));
    AwaitMatches(2);
    Program->Press(Window, QStringLiteral("alt+a"));
    AwaitMatches(0);
    Program->Press(Window, QStringLiteral("alt+s"));
    Program->Press(QStringLiteral("DO NOT SETUP IMPORT FILE"), Installed.Edition.YesKeys);
    Program->AwaitWindow(Menu);
    EXPECT_FALSE(Installed.Exists(SetupFile));
    AwaitBothFiles(*Program, Installed,
                   EditionGolden(Installed, "defaults")
                       .replace("\"[Import Students]\"\r\n\"\"\r\n0\r\n\"\"\r\n",
                                "\"[Import Students]\"\r\n\"\"\r\n2\r\n\"\"\r\n\"\"\r\n\"\"\r\n"));
}

TEST_P(ImportWindow, ReturnsToTheMenuWhenTheFirstDialogIsCancelled) {
    Program = StartToMenu(Installed);
    Program->Press(Menu, QStringLiteral("alt+i"));
    Program->CancelFileDialog(QStringLiteral("Open an Import File"));
    Program->AwaitNoWindow(Window);
    Program->AwaitWindow(Menu);
}

} // namespace
