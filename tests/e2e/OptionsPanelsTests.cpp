#include "tests/e2e/OptionsWindow.h"
#include "tests/e2e/Screen.h"

// Every setting of General Options is changed in the real program, once with the mouse and once with the keyboard
// alone; both ways must write the same hand-written file.

namespace {

class OptionsByMouse : public OptionsWindow {
protected:
    void Type(const char* box, const char* text) {
        Program->Enter(Title, QString::fromUtf8(box), QString::fromUtf8(text));
        Press("Tab");
    }
    void Check(const char* option) {
        Click(option);
        AwaitChecked(option);
    }
    // Opens a drop-down list with the mouse and picks an entry with the keys, which its list has then.
    void Pick(const char* list, const char* key, const char* text) {
        Click(list);
        PressKey(QString::fromUtf8(key));
        PressKey(QStringLiteral("Return"));
        AwaitText(list, text);
    }
    void ChooseFolder2016() {
        if (UnderWine()) { // where they are so many that the list is scrolled
            for (const char* key : {"End", "Up", "Return"}) {
                Work("dirHDir", key);
            }
            return;
        }
        const QRect list = Program->AwaitWindow(Title).Control(QStringLiteral("dirHDir")).Place;
        constexpr int thirdRow = 5; // of g:\, marks, 2016: five halves of a row below the top
        DoubleClickAt({list.center().x(), list.top() + thirdRow * list.height() / 8});
    }
    void ChangeFolders() {
        AwaitText("lblDfltPath", "g:\\marks");
        ChooseFolder2016();
        AwaitText("lblDfltPath", "g:\\marks\\2016");
        Click("cmdBkupPathBrowse");
        AnswerNotice("Set Gradewell Backup Path");
        AnswerFileDialog("Set Gradewell Backup Path", Network + QStringLiteral("/backup/daily/Don't_Delete_Me"));
        AwaitText("lblBkupPath", "g:\\backup\\daily");
        Click("cmdPhotos");
        AnswerNotice("PATH TO STUDENT PHOTOGRAPHS");
        AnswerFileDialog("Find Student Photographs", Network + QStringLiteral("/pictures/7.BMP"));
        AwaitText("lblMugShotPath", "g:\\pictures\\");
    }
    void ChangeBarCodes() {
        ClickPanel(3);
        Click("cmdBCAFont");
        ChooseFont(QStringLiteral("Liberation Mono"));
        AwaitText("lblBCAFontName", "Liberation Mono");
        Check("optBCADflt(0)");
        Type("txtBCADesc(0)", "Away");
        Pick("cboBCACode(0)", "z", "Z");
        AwaitText("lblBCCode(0)", "*Z*");
        Type("txtBCADesc(1)", "Tardy");
        Pick("cboBCACode(1)", "Down", "[Enter]");
        AwaitText("lblBCCode(1)", "*$M*");
        Pick("cboBCACode(2)", "Home", "[None]");
        AwaitText("lblBCCode(2)", "");
        AwaitText("txtBCADesc(2)", "");
    }
    void ChangeReports() {
        ClickPanel(5);
        Type("txtHTML_School", "S2");
        Type("txtHTML_File_Sep1", "x");
        Type("txtHTML_File_Sep2", "y");
        Pick("cboHTML_FileNameOrder", "Down", "Student# + Sep1 + Course + Sep2 + School");
        AwaitText("lblHTML_FileNameExample", "StudentIDxCourseCodeyS2.htm");
        Click("cmdHTML_Browse");
        AnswerNotice("Select HTML Report Folder");
        AnswerFileDialog("Locate Gradewell Data Folders", Network + QStringLiteral("/reports/Don't_Delete_Me"));
        AwaitText("lblHTML_Path", "g:\\reports");
    }
};

class OptionsByKeys : public OptionsWindow {
protected:
    void Type(const char* box, const char* text) {
        TabTo(box);
        TypeText(QString::fromUtf8(text));
        AwaitText(box, text);
    }
    void ChangeFolders() {
        Work("drvHDir", "c");
        AwaitText("lblDfltPath", "c:\\");
        Press("Down"); // to the folder that was chosen last on that drive
        AwaitText("lblDfltPath", "g:\\backup");
        Work("dirHDir", "Up");
        Press("Return");
        AwaitText("lblDfltPath", "g:\\");
        for (int past = 0; past < 3; ++past) { // backup, html, marks
            Press("Down");
        }
        Press("Return");
        AwaitText("lblDfltPath", "g:\\marks");
        Press("Down");
        Press("Return");
        AwaitText("lblDfltPath", "g:\\marks\\2016");
        Work("cmdBkupPathBrowse", "space");
        AnswerNotice("Set Gradewell Backup Path");
        AnswerFileDialog("Set Gradewell Backup Path", Network + QStringLiteral("/backup/daily/Don't_Delete_Me"));
        Work("cmdPhotos", "Return");
        AnswerNotice("PATH TO STUDENT PHOTOGRAPHS");
        AnswerFileDialog("Find Student Photographs", Network + QStringLiteral("/pictures/7.BMP"));
        AwaitText("lblMugShotPath", "g:\\pictures\\");
    }
    void ChangeBarCodes() {
        WorkPanel(3);
        Work("cmdBCAFont", "space");
        ChooseFont(QStringLiteral("Liberation Mono"));
        AwaitText("lblBCAFontName", "Liberation Mono");
        Work("optBCADflt(1)", "Left");
        AwaitChecked("optBCADflt(0)");
        Type("txtBCADesc(0)", "Away");
        Press("Return"); // moves on like Tab
        Press("z");
        AwaitText("lblBCCode(0)", "*Z*");
        Type("txtBCADesc(1)", "Tardy");
        Work("cboBCACode(1)", "Down");
        AwaitText("lblBCCode(1)", "*$M*");
        Work("cboBCACode(2)", "Home");
        AwaitText("txtBCADesc(2)", "");
    }
    void ChangePrinter() {
        WorkPanel(4);
        Work("chkHCDialog", "space");
        AwaitChecked("chkHCDialog");
        TabTo("optThickLine(1)");
        for (const char* option : {"optThickLine(2)", "optThickLine(3)", "optThickLine(4)"}) {
            Press("Down");
            AwaitChecked(option);
        }
        Press("Right"); // to the other column
        AwaitChecked("optThickLine(9)");
    }
    void ChangeReports() {
        WorkPanel(5);
        Type("txtHTML_School", "S2");
        Type("txtHTML_File_Sep1", "x");
        Type("txtHTML_File_Sep2", "y");
        Work("cboHTML_FileNameOrder", "Down");
        AwaitText("lblHTML_FileNameExample", "StudentIDxCourseCodeyS2.htm");
        Work("cmdHTML_Browse", "space");
        AnswerNotice("Select HTML Report Folder");
        AnswerFileDialog("Locate Gradewell Data Folders", Network + QStringLiteral("/reports/Don't_Delete_Me"));
        AwaitText("lblHTML_Path", "g:\\reports");
    }
};

INSTANTIATE_TEST_SUITE_P(Editions, OptionsByMouse, testing::Values("english", "french"),
                         [](const auto& tested) { return tested.param; });
INSTANTIATE_TEST_SUITE_P(Editions, OptionsByKeys, testing::Values("english", "french"),
                         [](const auto& tested) { return tested.param; });

TEST_P(OptionsByMouse, EveryPanelIsSavedToTheByte) {
    Open(State("options-start"));
    ChangeFolders();
    ClickPanel(1);
    Check("optDFormat(6)");
    ClickPanel(2);
    Type("txtSMTP", "smtp.school.example");
    ChangeBarCodes();
    ClickPanel(4);
    Check("chkHCDialog");
    Check("optThickLine(9)");
    ChangeReports();
    Click("cmdPrefSave");
    ExpectSaved(State("options-changed"));
}

TEST_P(OptionsByMouse, ClearButtonsAndCancelledDialogs) {
    Open(State("options-start"));
    Click("cmdDataPath");
    AnswerNotice("Locate Gradewell Data Folders");
    Program->CancelFileDialog(QStringLiteral("Locate Gradewell Data Folders"));
    AwaitText("lblDfltPath", "g:\\marks");
    for (const char* button : {"cmdClrDfltPath", "cmdBkupPathClear", "cmdMugClear"}) {
        Click(button);
    }
    AwaitText("lblMugShotPath", "");
    AwaitText("dirHDir", "");
    AwaitText("drvBkupPath", "");
    ClickPanel(3);
    Click("cmdBCAClear");
    AwaitText("lblBCAFSample", "");
    ClickPanel(5);
    Click("cmdHTML_Clear");
    AwaitText("lblHTML_Path", "");
    Click("cmdPrefSave");
    ExpectSaved(State("options-cleared"));
}

TEST_P(OptionsByKeys, EveryPanelIsSavedToTheByte) {
    Open(State("options-start"));
    ChangeFolders();
    WorkPanel(1);
    Work("optDFormat(4)", "Down");
    AwaitChecked("optDFormat(5)");
    Press("Down");
    AwaitChecked("optDFormat(6)");
    WorkPanel(2);
    Type("txtSMTP", "smtp.school.example");
    ChangeBarCodes();
    ChangePrinter();
    ChangeReports();
    Press(Installed.Edition.SaveKeys.toUtf8().constData());
    ExpectSaved(State("options-changed"));
}

} // namespace
