#include "tests/e2e/InstalledProgram.h"
#include "tests/e2e/RunningProgram.h"
#include "tests/e2e/Screen.h"

#include <gtest/gtest.h>

namespace {

const QString Older = QStringLiteral("GW_v11_PRG.CFG");
const QString Newer = QStringLiteral("GW_v12_PRG.CFG");

/// A program folder with the folders of a gradebook on the drive g:, and General Options open in the program.
class Options {
public:
    explicit Options(const EditionNames& edition) : Installed(edition), Title(edition.OptionsTitle) {
        for (const char* folder : {"network/marks/2016", "network/backup", "network/photos", "network/html"}) {
            Installed.MakeFolder(QString::fromUtf8(folder));
        }
        Installed.Write(QStringLiteral("drives.conf"), "G=" + Installed.Folder().toUtf8() + "/network\n");
        Installed.Write(Newer, State("options-start"));
        Program = std::make_unique<RunningProgram>(Installed.Folder(), edition.Executable);
        Program->Press(edition.PrinterTitle, QStringLiteral("Return"));
        Program->Press(edition.MenuTitle, QStringLiteral("alt+g"));
        Program->AwaitWindow(Title);
    }

    QByteArray State(const char* state) const {
        return Golden(QStringLiteral("%1-%2.cfg").arg(Installed.Edition.Component, QString::fromUtf8(state)));
    }
    void Panel(int panel) {
        Click(QStringLiteral("cmdSetup(%1)").arg(panel));
        Program->AwaitControl(Title, QStringLiteral("p3dSetup(%1)").arg(panel), QStringLiteral("to show"),
                              [](const auto& seen) { return seen.Visible; });
    }
    void Click(const QString& control) { Program->Click(Title, control); }
    void Press(const char* chord) { Program->Press(Title, QString::fromUtf8(chord)); }
    void Enter(const char* box, const char* text) {
        Program->Enter(Title, QString::fromUtf8(box), QString::fromUtf8(text));
        Press("Tab");
    }
    void Check(const char* option) {
        Click(QString::fromUtf8(option));
        Program->AwaitControl(Title, QString::fromUtf8(option), QStringLiteral("to be chosen"),
                              [](const auto& seen) { return seen.Checked; });
    }
    void AwaitText(const char* control, const char* text) {
        Program->AwaitText(Title, QString::fromUtf8(control), QString::fromUtf8(text));
    }
    void AwaitMenu() { Program->AwaitWindow(Installed.Edition.MenuTitle); }
    void AnswerFileDialog(const char* title, const QString& nativeName) {
        Program->AwaitWindow(QString::fromUtf8(title));
        TypeText(nativeName);
        PressKey(QStringLiteral("Return"));
        Program->AwaitWindow(Title);
    }

    InstalledProgram Installed;
    const QString Title;
    std::unique_ptr<RunningProgram> Program;
};

class OptionsOfEdition : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Editions, OptionsOfEdition, testing::Values("english", "french"),
                         [](const auto& tested) { return tested.param; });

TEST_P(OptionsOfEdition, ChangesOnEveryPanelReachTheFilesToTheByte) {
    Options options(GetParam() == "french" ? FrenchNames() : EnglishNames());
    options.AwaitText("lblDfltPath", "g:\\marks");
    options.Click(QStringLiteral("dirHDir"));
    options.Press("End");
    options.Press("Return");
    options.AwaitText("lblDfltPath", "g:\\marks\\2016");
    options.Click(QStringLiteral("cmdBkupPathClear"));
    options.AwaitText("lblBkupPath", "");
    options.Click(QStringLiteral("cmdMugClear"));
    options.AwaitText("lblMugShotPath", "");

    options.Panel(1);
    options.Check("optDFormat(6)");
    options.Panel(2);
    options.Enter("txtSMTP", "smtp.school.example");
    options.Panel(3);
    options.Enter("txtBCADesc(1)", "Tardy");
    options.Press("z");
    options.AwaitText("lblBCCode(1)", "*Z*");
    options.Check("optBCADflt(0)");
    options.Panel(4);
    options.Check("chkHCDialog");
    options.Check("optThickLine(9)");
    options.Panel(5);
    options.Enter("txtHTML_School", "S2");
    options.Enter("txtHTML_File_Sep1", "x");
    options.Press("Tab");
    options.Press("Down");
    options.AwaitText("lblHTML_FileNameExample", "StudentIDxCourseCode_S2.htm");
    options.Press(options.Installed.Edition.SaveKeys.toUtf8().constData());
    options.AwaitMenu();

    const QByteArray changed = options.State("options-changed");
    EXPECT_EQ(options.Installed.Read(Newer).toStdString(), changed.toStdString());
    EXPECT_EQ(options.Installed.Read(Older).toStdString(), changed.toStdString());
}

TEST_P(OptionsOfEdition, SavingAtOnceChangesNothing) {
    Options options(GetParam() == "french" ? FrenchNames() : EnglishNames());
    options.Press(options.Installed.Edition.SaveKeys.toUtf8().constData());
    options.AwaitMenu();
    EXPECT_EQ(options.Installed.Read(Newer).toStdString(), options.State("options-start").toStdString());
    EXPECT_EQ(options.Installed.Read(Older).toStdString(), options.State("options-start").toStdString());
}

TEST(OptionsWindow, RefusedTextStopsSaveByItsAccessKey) {
    Options options(EnglishNames());
    options.Panel(2);
    options.Program->Enter(options.Title, QStringLiteral("txtSMTP"), QStringLiteral("a,b"));
    options.Press("alt+s");
    options.Program->Press(QStringLiteral("INPUT ERROR"), QStringLiteral("Return"));
    options.Program->AwaitControl(options.Title, QStringLiteral("txtSMTP"), QStringLiteral("to keep the keyboard"),
                                  [](const auto& seen) { return seen.Focused; });
    EXPECT_FALSE(options.Installed.Exists(Older));
    options.Press("Escape");
    options.AwaitMenu();
    EXPECT_FALSE(options.Installed.Exists(Older));
    EXPECT_EQ(options.Installed.Read(Newer).toStdString(), options.State("options-start").toStdString());
}

TEST(OptionsWindow, SchemeIsSavedToAFileAndLoadedAgain) {
    Options options(EnglishNames());
    const QString file = options.Installed.Folder() + QStringLiteral("/network/new.scm");
    options.Panel(6);
    options.Click(QStringLiteral("cmdSaveScheme"));
    options.AnswerFileDialog("Save Scheme", file);
    EXPECT_EQ(options.Installed.Read(QStringLiteral("network/new.scm")).toStdString(),
              Golden(QStringLiteral("default.scm")).toStdString());
    options.Click(QStringLiteral("cmdClearScheme"));
    options.AwaitText("txtABCChr(12)", "");
    options.Click(QStringLiteral("cmdLoadScheme"));
    options.AnswerFileDialog("Load a Scheme", file);
    options.AwaitText("txtABCChr(12)", "A+");
    options.AwaitText("lblABCLow", "For 0 to 49.9% use:");
}

} // namespace
