#include "tests/e2e/MenuSteps.h"
#include "tests/e2e/Screen.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QThread>
#include <gtest/gtest.h>
#include <stdexcept>

// The Windows programs exactly as they are handed out, under Wine. They cannot be looked into, so a twin with the probe
// tells first where the controls lie in their windows; then the program itself is worked with mouse and keys, and what
// it writes is compared.

namespace {

constexpr int Patience = 60'000;
constexpr unsigned long BetweenLooks = 50;
const QString Students = QStringLiteral("students.txt");
const QString ImportDialog = QStringLiteral("Open an Import File");
// In the order of the columns of the student data file; the last one is "Ignore this field".
const QStringList FieldsToMatch = {QStringLiteral("lblFieldList(6)"), QStringLiteral("lblFieldList(1)"),
                                   QStringLiteral("lblFieldList(2)"), QStringLiteral("lblFieldList(4)"),
                                   QStringLiteral("lblFieldList(7)"), QStringLiteral("lblFieldList(16)")};
const QStringList UpdatesToTick = {QStringLiteral("chkCLUpd(0)"), QStringLiteral("chkCLUpdFields(4)")};

template <typename Condition>
void Await(const QString& what, Condition condition) {
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (clock.elapsed() > Patience) {
            throw std::runtime_error("Waited for " + what.toStdString() + "; the active window is " +
                                     ActiveTitle().toStdString());
        }
        QThread::msleep(BetweenLooks);
    }
}

void AwaitActive(const QString& title) {
    Await(title, [&] {
        const QString keys = ActiveTitle();
        if (keys.isEmpty()) { // behind one of its own file dialogs Wine leaves the display without a window for them
            GiveKeysTo(title);
        }
        return keys == title;
    });
}

class WindowsProgram : public testing::TestWithParam<std::string> {
protected:
    const EditionNames Edition = NamesOf(GetParam());
    InstalledProgram Itself{Edition, ProgramKind::AsHandedOut};
    QProcess Process;

    void SetUp() override {
        if (!UnderWine()) {
            GTEST_SKIP() << "WINDOWS_BUILD does not name a build for Windows";
        }
        Itself.Write(Newer, Start());
    }

    void TearDown() override {
        if (Process.state() != QProcess::NotRunning) {
            Process.kill();
            Process.waitForFinished(Patience);
        }
    }

    static QByteArray Start() { return WithFolders(Golden(QStringLiteral("start.cfg"))); }

    /// Asks the twin where the controls of the menu and of General Options lie.
    void LearnPlaces() {
        InstalledProgram twin(Edition);
        twin.Write(Newer, Start());
        const auto program = StartToMenu(twin);
        Learn(*program, Edition.MenuTitle, QStringLiteral("imgUnlocked"));
        program->Press(Edition.MenuTitle, QStringLiteral("alt+g"));
        Learn(*program, Edition.OptionsTitle, QStringLiteral("cmdSetup(1)"));
        Learn(*program, Edition.OptionsTitle, QStringLiteral("optDFormat(3)"));
        Learn(*program, Edition.OptionsTitle, QStringLiteral("cmdSetup(2)"));
        Learn(*program, Edition.OptionsTitle, QStringLiteral("txtSMTP"));
    }

    /// The same of the import window with the program folder's student data file.
    void LearnImportPlaces() {
        InstalledProgram twin(Edition);
        twin.Write(Students, StudentData());
        const auto program = StartToMenu(twin);
        program->Press(Edition.MenuTitle, QStringLiteral("alt+i"));
        program->ChooseFile(ImportDialog, twin.Native(Students));
        for (const QString& control : FieldsToMatch + UpdatesToTick) {
            Find(*program, ImportTitle(), control);
        }
    }

    void StartItself() {
        Process.start(QStringLiteral(E2E_WITH_WINE), {QDir(Itself.Folder()).absoluteFilePath(Edition.Executable)});
        Press(Edition.PrinterTitle, "Return");
        AwaitActive(Edition.MenuTitle);
    }

    void Click(const QString& title, const QString& control) {
        AwaitActive(title);
        ClickAt(ActiveOrigin() + places.value(control));
    }
    void Click(const QString& title, const char* control) { Click(title, QString::fromLatin1(control)); }
    void Press(const QString& title, const QString& chord) {
        AwaitActive(title);
        PressKey(chord);
    }
    void Press(const QString& title, const char* chord) { Press(title, QString::fromLatin1(chord)); }

    void AwaitFiles(const QByteArray& expected) {
        try {
            Await(QStringLiteral("both files"),
                  [&] { return Itself.Read(Newer) == expected && Itself.Read(Older) == expected; });
        } catch (const std::exception& failure) {
            ADD_FAILURE() << failure.what();
        }
        EXPECT_EQ(Itself.Read(Newer).toStdString(), expected.toStdString());
        EXPECT_EQ(Itself.Read(Older).toStdString(), expected.toStdString());
    }

    void DoubleClick(const QString& title, const QString& control) {
        AwaitActive(title);
        DoubleClickAt(ActiveOrigin() + places.value(control));
    }

    QString ImportTitle() const { return Edition.MenuTitle + QStringLiteral(" - IMPORT FILE SETUP"); }

    static QByteArray StudentData() {
        QFile file(QStringLiteral(E2E_SAMPLES "/students.txt"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

private:
    QHash<QString, QPoint> places;

    void Find(RunningProgram& program, const QString& title, const QString& control) {
        const SeenControl seen =
            program.AwaitControl(title, control, QStringLiteral("to be there"),
                                 [](const auto& now) { return now.Visible && !now.Place.isEmpty(); });
        program.AwaitWindow(title);
        places.insert(control, seen.Place.center() - ActiveOrigin());
    }

    void Learn(RunningProgram& program, const QString& title, const QString& control) {
        Find(program, title, control);
        if (control != QStringLiteral("imgUnlocked")) { // which would be gone
            program.Click(title, control);
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Editions, WindowsProgram, testing::Values("english", "french"),
                         [](const auto& tested) { return tested.param; });

TEST_P(WindowsProgram, IsAProgramAndItsManualAndNothingElse) {
    Itself.Remove(Newer);
    EXPECT_EQ(Itself.Files(), QStringList({QStringLiteral("Manuals/Gradewell Config.PDF"), Edition.Executable}));
    EXPECT_TRUE(Itself.Read(Edition.Executable).startsWith("MZ"));
}

TEST_P(WindowsProgram, TogglesTheLockSavesOptionsAndEndsWithTheSameBytesAsEverywhere) {
    LearnPlaces();
    StartItself();
    Click(Edition.MenuTitle, "imgUnlocked");
    AwaitFiles(WithFolders(EditionGolden(Itself, "locked")));
    Click(Edition.MenuTitle, "imgUnlocked"); // the closed lock lies where the open one did
    AwaitFiles(WithFolders(EditionGolden(Itself, "unlocked")));

    Press(Edition.MenuTitle, "alt+g");
    Click(Edition.OptionsTitle, "cmdSetup(1)");
    Click(Edition.OptionsTitle, "optDFormat(3)");
    Click(Edition.OptionsTitle, "cmdSetup(2)");
    Click(Edition.OptionsTitle, "txtSMTP");
    Press(Edition.OptionsTitle, "ctrl+a");
    TypeText(QStringLiteral("mail.board.example"));
    Press(Edition.OptionsTitle, Edition.SaveKeys);
    const QByteArray saved =
        WithFolders(EditionGolden(Itself, "unlocked"))
            .replace("[Bar Code Attendance]\r\n 1 \r\n 0 \r\n", "[Bar Code Attendance]\r\n 1 \r\n 1 \r\n")
            .replace("[Date Format]\r\n 6 \r\n", "[Date Format]\r\n 3 \r\n")
            .replace("smtp.\xE9"
                     "cole.example",
                     "mail.board.example");
    AwaitFiles(saved);

    Press(Edition.MenuTitle, Edition.ExitKeys);
    ASSERT_TRUE(Process.waitForFinished(Patience));
    EXPECT_EQ(Process.exitCode(), 0);
    AwaitFiles(saved);
}

TEST_P(WindowsProgram, SavesAnImportSetupWithTheSameBytesAsEverywhere) {
    LearnImportPlaces();
    Itself.Remove(Newer);
    Itself.Write(Students, StudentData());
    StartItself();
    Press(Edition.MenuTitle, "alt+i");
    Press(ImportDialog, "ctrl+a");
    TypeText(Itself.Native(Students));
    Press(ImportDialog, "Return");
    for (const QString& field : FieldsToMatch) {
        DoubleClick(ImportTitle(), field);
    }
    for (const QString& box : UpdatesToTick) {
        Click(ImportTitle(), box);
    }
    Press(ImportTitle(), "alt+s");
    AwaitActive(Edition.MenuTitle);
    EXPECT_EQ(Itself.Read(QStringLiteral("UpdField.cfg")).toStdString(),
              Golden(QStringLiteral("import-UpdField.cfg")).toStdString());
    AwaitFiles(EditionGolden(Itself, "import").replace("g:\\students.txt", Itself.Native(Students).toLatin1()));
}

} // namespace
