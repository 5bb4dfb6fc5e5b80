#include "tests/e2e/MenuSteps.h"
#include "tests/e2e/Screen.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <gtest/gtest.h>

// What the Windows programs ask of their system: files that another program holds, shares, the system's own dialogs and
// the programs that come with it.

namespace {

constexpr int Patience = 60'000;
const QString List = QStringLiteral("WorkHabits.txt");
const QString LockLabel = QStringLiteral("lblLocked");

/// A second process that has a file open and lets others read it, but not replace it.
class Holder {
public:
    explicit Holder(const QString& nativeFile) {
        const QString program =
            qEnvironmentVariable("WINDOWS_BUILD") + QStringLiteral("/tests/platform/file_holder.exe");
        process.start(QStringLiteral(E2E_WITH_WINE), {program, nativeFile, QStringLiteral("r")});
        process.waitForReadyRead(Patience);
        EXPECT_EQ(process.readLine().trimmed().toStdString(), "held");
    }
    ~Holder() {
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(Patience));
    }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

private:
    QProcess process;
};

/// The folder as a share of the network: \\school\apps, 2016.
class Share {
public:
    explicit Share(const QString& folder) {
        QDir().mkpath(server);
        QFile::remove(link);
        EXPECT_TRUE(QFile::link(folder, link));
    }
    ~Share() { QFile::remove(link); }
    Share(const Share&) = delete;
    Share& operator=(const Share&) = delete;

    const QString Name = QStringLiteral("\\\\school\\apps, 2016");

private:
    const QString server = qEnvironmentVariable("WINEPREFIX") + QStringLiteral("/dosdevices/unc/school");
    const QString link = server + QStringLiteral("/apps, 2016");
};

class WindowsSystem : public testing::Test {
protected:
    InstalledProgram Installed{EnglishNames()};
    const QString Menu = Installed.Edition.MenuTitle;
    std::unique_ptr<RunningProgram> Program;

    void SetUp() override {
        if (!UnderWine()) {
            GTEST_SKIP() << "WINDOWS_BUILD does not name a build for Windows";
        }
        Installed.Write(Newer, Golden(QStringLiteral("start.cfg")));
    }

    void AwaitSystemWindow(const QString& part) {
        Program->Await(part, [&](const SeenScreen&) { return ActiveTitle().contains(part); });
    }
};

} // namespace

TEST_F(WindowsSystem, AFileThatAnotherProgramHoldsIsToldAsNumber70AndStaysWhole) {
    Program = StartToMenu(Installed);
    const QString error = QStringLiteral("GW_v12_PRG.CFG SAVE ERROR: 70");
    {
        const Holder holder(Installed.Native(Newer));
        QElapsedTimer clock;
        clock.start();
        Program->Click(Menu, QStringLiteral("imgUnlocked"));
        EXPECT_EQ(Program->AwaitWindow(error).Control(QStringLiteral("qt_msgbox_label")).Text,
                  QStringLiteral("Unexpected Error while trying to save: GW_v12_PRG.CFG"));
        EXPECT_GE(clock.elapsed(), 1900);
        EXPECT_EQ(Installed.Read(Newer).toStdString(), Golden(QStringLiteral("start.cfg")).toStdString());
        EXPECT_EQ(Installed.Read(Older).toStdString(), EditionGolden(Installed, "locked").toStdString());
        Program->Press(error, QStringLiteral("Return"));
        Program->AwaitText(Menu, LockLabel, QStringLiteral("Locked"));
    }
    EXPECT_EQ(Installed.Files(),
              QStringList({Older, Newer, QStringLiteral("Manuals/Gradewell Config.PDF"), Installed.Edition.Executable}))
        << "nothing is left of the save that failed";
    Program->Click(Menu, QStringLiteral("imgLocked"));
    AwaitBothFiles(*Program, Installed, EditionGolden(Installed, "unlocked"));
}

TEST_F(WindowsSystem, TheTextEditorGetsAFolderWithACommaAsOneName) {
    const QTemporaryDir place;
    const QString commaFolder = place.path() + QStringLiteral("/apps, 2016=new");
    ASSERT_TRUE(QFile::link(Installed.Folder(), commaFolder));
    Installed.Write(List, "E\r\n");
    Installed.Write(Installed.Edition.TransferProgram, "MZ");
    Program = std::make_unique<RunningProgram>(commaFolder, Installed.Edition.Executable);
    Program->AnswerMessage(Installed.Edition.PrinterTitle);
    const QString transfer = Menu + QStringLiteral(" - TRANSFER PROGRAM");
    Program->Press(Menu, QStringLiteral("alt+t"));
    Program->Click(transfer, QStringLiteral("cboSIS"));
    PressKey(QStringLiteral("End"));
    PressKey(QStringLiteral("Return"));
    Program->AwaitText(transfer, QStringLiteral("cboSIS"), QStringLiteral("Windsor-Harts"));
    Program->Press(transfer, QStringLiteral("alt+w"));
    const QString question = QStringLiteral("CREATE/EDIT 'WorkHabits.txt'");
    const QString text = Program->AwaitWindow(question).Control(QStringLiteral("qt_msgbox_label")).Text;
    EXPECT_TRUE(text.contains(QStringLiteral("apps, 2016=new"))) << text.toStdString();
    Program->Press(question, QStringLiteral("Return"));
    AwaitSystemWindow(QStringLiteral("WorkHabits"));
    PressKey(QStringLiteral("ctrl+End"));
    TypeText(QStringLiteral("G"));
    PressKey(QStringLiteral("ctrl+s"));
    Program->Await(QStringLiteral("the list to be saved"),
                   [&](const SeenScreen&) { return Installed.Read(List) == "E\r\nG"; });
    PressKey(QStringLiteral("alt+F4"));
    Program->AwaitWindow(transfer);
}

TEST_F(WindowsSystem, AStudentFileMayLieOnAShare) {
    Installed.MakeFolder(QStringLiteral("shared"));
    Installed.Write(QStringLiteral("shared/students.txt"), "Smith,John,M\r\n");
    const QByteArray stored = EditionGolden(Installed, "defaults")
                                  .replace("\"[Import Students]\"\r\n\"\"\r\n",
                                           "\"[Import Students]\"\r\n\"\\\\school\\apps, 2016\\students.txt\"\r\n");
    Installed.Write(Newer, stored);
    const Share share(Installed.Folder() + QStringLiteral("/shared"));
    Program = StartToMenu(Installed);
    const QString import = Menu + QStringLiteral(" - IMPORT FILE SETUP");
    const QString students = share.Name + QStringLiteral("\\students.txt");
    Program->Press(Menu, QStringLiteral("alt+i"));
    Program->AwaitText(import, QStringLiteral("lblFileName"), students);
    Program->AwaitText(import, QStringLiteral("lblMatched"), QStringLiteral("Matched: 0 of 3"));
    Program->DoubleClick(import, QStringLiteral("lblFieldList(1)"));
    Program->AwaitText(import, QStringLiteral("lblMatched"), QStringLiteral("Matched: 1 of 3"));
    Program->DoubleClick(import, QStringLiteral("lblFieldList(2)"));
    Program->AwaitText(import, QStringLiteral("lblMatched"), QStringLiteral("Matched: 2 of 3"));
    Program->Press(import, QStringLiteral("alt+s"));
    Program->AwaitWindow(Menu);
    EXPECT_TRUE(Installed.Read(QStringLiteral("shared/UpdField.cfg"))
                    .contains("ActiveFields=2\r\nField1=Last Name\r\nField2=First Name\r\n"));
    AwaitBothFiles(*Program, Installed,
                   QByteArray(stored).replace("students.txt\"\r\n0\r\n\"\"\r\n",
                                              "students.txt\"\r\n2\r\n\"0\"\r\n\"Last Name\"\r\n\"First Name\"\r\n"));
}

TEST_F(WindowsSystem, TheFontOfBarCodesComesFromTheSystemsFontDialog) {
    Installed.Write(Newer, WithFolders(Golden(QStringLiteral("start.cfg"))));
    Program = StartToMenu(Installed);
    const QString options = Installed.Edition.OptionsTitle;
    const QString fontDialog = QStringLiteral("Font");
    const QString name = QStringLiteral("lblBCAFontName");
    Program->Press(Menu, QStringLiteral("alt+g"));
    Program->Click(options, QStringLiteral("cmdSetup(3)"));
    Program->Click(options, QStringLiteral("cmdBCAClear"));
    Program->AwaitText(options, name, QString());
    Program->Click(options, QStringLiteral("cmdBCAFont"));
    AwaitSystemWindow(fontDialog);
    PressKey(QStringLiteral("Escape"));
    Program->AwaitText(options, name, QString());

    Program->Click(options, QStringLiteral("cmdBCAFont"));
    AwaitSystemWindow(fontDialog);
    PressKey(QStringLiteral("Down"));
    PressKey(QStringLiteral("Return"));
    const SeenControl chosen = Program->AwaitControl(options, name, QStringLiteral("to show a font"),
                                                     [](const auto& seen) { return !seen.Text.isEmpty(); });
    Program->AwaitText(options, QStringLiteral("lblBCAFSample"), QStringLiteral("CHOOSE ANOTHER FONT"));

    Program->Click(options, QStringLiteral("cmdBCAFont"));
    AwaitSystemWindow(fontDialog);
    PressKey(QStringLiteral("Return")); // the font that is set is chosen already
    Program->AwaitText(options, name, chosen.Text);
}
