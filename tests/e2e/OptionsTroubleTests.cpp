#include "tests/e2e/OptionsWindow.h"
#include "tests/e2e/Screen.h"

#include <QDir>

// General Options in the real program when something is refused, missing or unsaved, and its schemes.

namespace {

class OptionsInTrouble : public OptionsWindow {
protected:
    void AnswerMessage(const char* title, const char* button) {
        Program->Click(QString::fromUtf8(title), Installed.Edition.Shown(button));
        Program->AwaitWindow(Title);
    }
    QByteArray Written(const char* name) { return Installed.Read(QString::fromUtf8(name)); }
};

INSTANTIATE_TEST_SUITE_P(Editions, OptionsInTrouble, testing::Values("english", "french"),
                         [](const auto& tested) { return tested.param; });

TEST_P(OptionsInTrouble, SavingAtOnceChangesNothing) {
    Open(State("options-start"));
    Press(Installed.Edition.SaveKeys.toUtf8().constData());
    ExpectSaved(State("options-start"));
}

TEST_P(OptionsInTrouble, RefusedTextStopsSaveByItsAccessKey) {
    Open(State("options-start"));
    ClickPanel(2);
    Program->Enter(Title, QStringLiteral("txtSMTP"), QStringLiteral("a,b"));
    Press(Installed.Edition.SaveKeys.toUtf8().constData());
    AnswerMessage("INPUT ERROR", "OK");
    Program->AwaitControl(Title, QStringLiteral("txtSMTP"), QStringLiteral("to keep the keyboard"),
                          [](const auto& seen) { return seen.Focused; });
    Press("Escape");
    Program->AwaitWindow(Installed.Edition.MenuTitle);
    EXPECT_FALSE(Installed.Exists(QStringLiteral("GW_v11_PRG.CFG")));
    EXPECT_EQ(Written("GW_v12_PRG.CFG").toStdString(), Here(State("options-start")).toStdString());
}

TEST_P(OptionsInTrouble, VanishedFolderAsksAndTheWindowStaysUsable) {
    Open(State("options-start").replace("\"g:\\marks\"", "\"g:\\gone\""), QStringLiteral("DEFAULT PATH ERROR"));
    Installed.MakeFolder(QStringLiteral("network/gone"));
    AnswerMessage("DEFAULT PATH ERROR", "Retry");
    AwaitText("lblDfltPath", "g:\\gone");
    ASSERT_TRUE(QDir().rmdir(Network + QStringLiteral("/gone")));
    Work("dirHDir", "Return"); // opens the current folder again, which is not there any more
    AnswerMessage("DEFAULT PATH ERROR", "Cancel");
    AwaitText("lblDfltPath", "c:\\");
    AwaitText("drvHDir", "c:");
    Click("cmdClrDfltPath");
    Click("cmdPrefSave");
    ExpectSaved(State("options-start").replace("\"g:\\marks\"", "\"\""));
}

TEST_P(OptionsInTrouble, GradebookFolderIsWarnedAboutAndKept) {
    Installed.MakeFolder(QStringLiteral("network/marks/GWdata"));
    Open(State("options-start"));
    Click("dirHDir");
    Press("End");
    Press("Return"); // old, the last one
    AwaitText("lblDfltPath", "g:\\marks\\old");
    Press("Up");
    Press("Return");
    AwaitText("lblDfltPath", "g:\\marks");
    Click("cmdDataPath");
    AnswerNotice("Locate Gradewell Data Folders");
    AnswerFileDialog("Locate Gradewell Data Folders", Network + QStringLiteral("/marks/GWdata/x"));
    AnswerMessage("Gradewell Path Error", "OK");
    AwaitText("lblDfltPath", "g:\\marks\\gwdata");
    Click("cmdPrefSave");
    ExpectSaved(State("options-start").replace("\"g:\\marks\"", "\"g:\\marks\\gwdata\""));
}

TEST_P(OptionsInTrouble, FolderNamesThatNoFileCanHoldAreRefused) {
    if (UnderWine()) {
        GTEST_SKIP() << "Windows has no such names";
    }
    Installed.MakeFolder(QStringLiteral("network/backup/a\"b")); // the first in its folder
    Open(State("options-start"));
    Click("cmdBkupPathBrowse");
    AnswerNotice("Set Gradewell Backup Path");
    const QString dialog = QStringLiteral("Set Gradewell Backup Path");
    const auto showing = [&dialog](const char* control) {
        return [&dialog, control](const SeenScreen& screen) {
            const SeenWindow* window = screen.Window(dialog);
            return window != nullptr && window->Active && window->Has(QString::fromUtf8(control));
        };
    };
    const SeenScreen seen = Program->Await(QStringLiteral("the dialog"), showing("fileNameEdit"));
    const QRect list = seen.Window(dialog)->Control(QStringLiteral("treeView")).Place;
    DoubleClickAt(list.topLeft() + QPoint(40, 28));
    Program->AwaitControl(dialog, QStringLiteral("lookInCombo"), QStringLiteral("to show the folder"),
                          [](const auto& look) { return look.Text.endsWith(QStringLiteral("a\"b")); });
    Program->Click(dialog, Installed.Edition.Shown("Save"));
    Program->Await(QStringLiteral("the refusal"), showing("OK"));
    AnswerMessage("Set Gradewell Backup Path", "OK");
    AwaitText("lblBkupPath", "g:\\backup");
    Click("cmdPrefSave");
    ExpectSaved(State("options-start"));
}

TEST_P(OptionsInTrouble, SchemeIsCheckedSavedAndLoadedAgain) {
    Open(State("options-start"));
    ClickPanel(6);
    Click("cboABCLevels");
    PressKey(QStringLiteral("Home"));
    PressKey(QStringLiteral("Down"));
    PressKey(QStringLiteral("Return"));
    AwaitText("cboABCLevels", "3");
    Program->Enter(Title, QStringLiteral("txtABCVal(2)"), QStringLiteral("40"));
    Click("cmdABCCheck");
    AnswerMessage("LEVELS CHECK", "OK");
    Program->Enter(Title, QStringLiteral("txtABCVal(2)"), QStringLiteral("60"));
    Program->Enter(Title, QStringLiteral("txtABCHeading"), QStringLiteral("Level"));
    Click("cmdPrefSave");
    Program->Click(QStringLiteral("SAVE SCHEME"), Installed.Edition.Shown("Yes"));
    AnswerFileDialog("Save Scheme", Network + QStringLiteral("/new"));
    ExpectSaved(State("options-start"));
    const QByteArray golden = Golden(QStringLiteral("three-levels.scm"));
    EXPECT_EQ(Written("network/new.scm").toStdString(), golden.toStdString());

    Program->Press(Installed.Edition.MenuTitle, QStringLiteral("alt+g"));
    Program->AwaitWindow(Title);
    ClickPanel(6);
    AwaitText("txtABCChr(12)", "A+");
    Click("cmdLoadScheme");
    AnswerFileDialog("Load a Scheme", Network + QStringLiteral("/new.scm"));
    AwaitText("txtABCHeading", "Level");
    AwaitText("txtABCVal(2)", "60");
    AwaitText("txtABCChr(12)", "");
    AwaitText("lblABCLow", GetParam() == "french" ? "Pour 0 \xC3\xA0 49,9% utiliser :" : "For 0 to 49.9% use:");
}

} // namespace
