#include "tests/e2e/MenuSteps.h"
#include "tests/e2e/OptionsWindow.h"
#include "tests/e2e/Screen.h"

#include <QFile>

// What an administrator does on the first day, by the keyboard alone: the lock, General Options with a scheme, the
// import setup, and Exit.

namespace {

const QString SchemeFile = QStringLiteral("network/stages.scm");
const QString SetupFile = QStringLiteral("network/UpdField.cfg");

class KeyboardOnly : public OptionsWindow {
protected:
    const QString Menu = Installed.Edition.MenuTitle;
    const QString Import = Menu + QStringLiteral(" - IMPORT FILE SETUP");
    const int MovesBefore = MouseMoves();

    KeyboardOnly() {
        QFile::copy(QStringLiteral(E2E_SAMPLES "/students.txt"), Network + QStringLiteral("/students.txt"));
        Installed.Write(Newer, State("options-start"));
    }

    void Type(const char* box, const char* text) {
        TabTo(box);
        TypeText(QString::fromUtf8(text));
        AwaitText(box, text);
    }

    void Lock() {
        Work(Menu, "imgUnlocked", "space");
        Program->AwaitText(Menu, QStringLiteral("lblLocked"), QStringLiteral("Locked"));
        AwaitBothFiles(*Program, Installed,
                       State("options-start").replace("Program Config Lock=OFF", "Program Config Lock=ON"));
    }

    void ChangeSettings() {
        WorkPanel(1);
        Work("optDFormat(4)", "Down");
        AwaitChecked("optDFormat(5)");
        WorkPanel(2);
        Type("txtSMTP", "smtp.school.example");
        WorkPanel(4);
        Work("chkHCDialog", "space");
        AwaitChecked("chkHCDialog");
        WorkPanel(5);
        Type("txtHTML_School", "S2");
    }

    void MakeScheme() {
        WorkPanel(6);
        Work("cboABCLevels", "Home");
        Press("Down");
        AwaitText("cboABCLevels", "3");
        Type("txtABCHeading", "Stage");
        const struct {
            const char* box;
            const char* text;
        } entries[] = {{"txtABCChr(0)", "N"},
                       {"txtABCChr(1)", "P"},
                       {"txtABCVal(1)", "50"},
                       {"txtABCChr(2)", "M"},
                       {"txtABCVal(2)", "75"}};
        for (const auto& entry : entries) {
            Type(entry.box, entry.text);
        }
        Work("cmdSaveScheme", "space");
        AnswerFileDialog("Save Scheme", Network + QStringLiteral("/stages"));
        Program->AwaitWindow(Title);
    }

    // Matches the field that has the keyboard; it goes on to the next free one.
    void MatchHere(int count) {
        Program->Press(Import, QStringLiteral("space"));
        AwaitMatches(count);
    }
    void AwaitMatches(int count) {
        Program->AwaitText(Import, QStringLiteral("lblMatched"), QStringLiteral("Matched: %1 of 12").arg(count));
    }
    void MatchFields() {
        Program->TabTo(Import, QStringLiteral("lblFieldList(1)"));
        GoDown(5);
        MatchHere(1); // the student number, the file's first column
        Program->Press(Import, QStringLiteral("Home"));
        MatchHere(2); // last and first name
        MatchHere(3);
        GoDown(1);
        MatchHere(4); // gender
        GoDown(1);
        MatchHere(5); // date of birth; the student number above it is passed over
        Program->Press(Import, QStringLiteral("Home"));
        GoDown(1);
        MatchHere(6); // home form
    }
    void GoDown(int fields) {
        for (int passed = 0; passed < fields; ++passed) {
            Program->Press(Import, QStringLiteral("Down"));
        }
    }
    void SetUpImport() {
        Work(Menu, "cmdImport", "Return");
        Program->Press(QStringLiteral("IMPORT ERROR: 76"), QStringLiteral("Return")); // the old file's folder is gone
        Work(Import, "cmdOpen", "Return");
        AnswerFileDialog("Open an Import File", Network + QStringLiteral("/students.txt"));
        AwaitMatches(0);
        MatchFields();
        Work(Import, "chkCLUpd(0)", "space");
        Work(Import, "chkCLUpdFields(4)", "space");
        Work(Import, "cboDOB", "Home");
        Program->Press(Import, QStringLiteral("Down"));
        Program->AwaitText(Import, QStringLiteral("lblFieldList(7)"), QStringLiteral("DOB (Mth/Day/Year)"));
        Work(Import, "cmdSave", "Return");
        Program->AwaitNoWindow(Import);
    }
};

INSTANTIATE_TEST_SUITE_P(Editions, KeyboardOnly, testing::Values("english", "french"),
                         [](const auto& tested) { return tested.param; });

TEST_P(KeyboardOnly, TheFirstDayIsSavedToTheByte) {
    Program = StartToMenu(Installed);
    Lock();
    Work(Menu, "cmdGeneral", "Return");
    ChangeSettings();
    MakeScheme();
    Work("cmdPrefSave", "space");
    Program->AwaitNoWindow(Title);
    SetUpImport();
    Work(Menu, "cmdExit", "Return");
    EXPECT_EQ(Program->AwaitEnd(), 0);

    const auto written = [this](const QString& name) { return Installed.Read(name).toStdString(); };
    EXPECT_EQ(written(SchemeFile), Golden(QStringLiteral("keyboard-stages.scm")).toStdString());
    EXPECT_EQ(written(SetupFile), Golden(QStringLiteral("keyboard-UpdField.cfg")).toStdString());
    EXPECT_EQ(written(Older), State("keyboard").toStdString());
    EXPECT_EQ(written(Newer), State("keyboard").toStdString());
    EXPECT_EQ(MouseMoves(), MovesBefore);
}

} // namespace
