#include "tests/e2e/InstalledProgram.h"
#include "tests/e2e/RunningProgram.h"
#include "tests/e2e/Screen.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

const QString Window = QStringLiteral("Gradewell 2016 Config - IMPORT FILE SETUP");
const QString Matched = QStringLiteral("lblMatched");

QString FieldName(int field) {
    return QStringLiteral("lblFieldList(%1)").arg(field);
}

/// The import window of the installed program. Drive g: is the school's folder with the sample student data file.
class ImportWindow : public testing::Test {
protected:
    InstalledProgram Installed{EnglishNames()};
    const QString Menu = Installed.Edition.MenuTitle;
    const QString School = Installed.Folder() + QStringLiteral("/school");
    std::unique_ptr<RunningProgram> Program;

    ImportWindow() {
        Installed.MakeFolder(QStringLiteral("school"));
        QFile::copy(QStringLiteral(E2E_SAMPLES "/students.txt"), School + QStringLiteral("/students.txt"));
        Installed.Write(QStringLiteral("drives.conf"), "G=" + School.toUtf8() + "\n");
    }

    void OpenStudents() {
        Program = std::make_unique<RunningProgram>(Installed.Folder(), Installed.Edition.Executable);
        Program->Press(Installed.Edition.PrinterTitle, QStringLiteral("Return"));
        Program->Press(Menu, QStringLiteral("alt+i"));
        const QString dialog = QStringLiteral("Open an Import File");
        Program->Enter(dialog, QStringLiteral("fileNameEdit"), School + QStringLiteral("/students.txt"));
        Program->Press(dialog, QStringLiteral("Return"));
        Program->AwaitText(Window, QStringLiteral("lblFileName"), QStringLiteral("g:\\students.txt"));
        Program->AwaitText(Window, Matched, QStringLiteral("Matched: 0 of 12"));
    }

    QPoint Middle(const QString& control) { return Program->AwaitWindow(Window).Control(control).Place.center(); }
    void AwaitMatches(int count) {
        Program->AwaitText(Window, Matched, QStringLiteral("Matched: %1 of 12").arg(count));
    }
    void DragToGrid(int field) { DragFromTo(Middle(FieldName(field)), Middle(QStringLiteral("grdImport"))); }
    void DoubleClick(int field) { DoubleClickAt(Middle(FieldName(field))); }
};

TEST_F(ImportWindow, MatchesByEveryWayAndSavesToTheByte) {
    OpenStudents();
    DragToGrid(6);
    AwaitMatches(1);
    DoubleClick(1);
    AwaitMatches(2);
    Program->AwaitControl(Window, FieldName(1), QStringLiteral("to be used"),
                          [](const auto& it) { return !it.Enabled; });
    DragToGrid(1); // a used field starts no drag
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
    Program->Press(Window, QStringLiteral("alt+s"));
    Program->AwaitWindow(Menu);

    EXPECT_EQ(Golden(QStringLiteral("import-UpdField.cfg")).toStdString(),
              Installed.Read(QStringLiteral("school/UpdField.cfg")).toStdString());
    const QByteArray expected = Golden(QStringLiteral("import-saved.cfg"));
    EXPECT_EQ(expected.toStdString(), Installed.Read(QStringLiteral("GW_v12_PRG.CFG")).toStdString());
    EXPECT_EQ(expected.toStdString(), Installed.Read(QStringLiteral("GW_v11_PRG.CFG")).toStdString());
}

TEST_F(ImportWindow, ReturnsToTheMenuWhenTheFirstDialogIsCancelled) {
    Program = std::make_unique<RunningProgram>(Installed.Folder(), Installed.Edition.Executable);
    Program->Press(Installed.Edition.PrinterTitle, QStringLiteral("Return"));
    Program->Press(Menu, QStringLiteral("alt+i"));
    Program->Press(QStringLiteral("Open an Import File"), QStringLiteral("Escape"));
    Program->AwaitNoWindow(Window);
    Program->AwaitWindow(Menu);
}

} // namespace
