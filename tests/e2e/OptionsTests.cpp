#include "tests/e2e/MenuSteps.h"

#include <gtest/gtest.h>

namespace {

const QString MailServer = QStringLiteral("txtSMTP");

/// What Save of General Options makes of the unlocked file once the date format is 3 and the mail server typed.
QByteArray Saved(const InstalledProgram& installed, const QByteArray& mailServer) {
    return WithFolders(EditionGolden(installed, "unlocked"))
        .replace("[Bar Code Attendance]\r\n 1 \r\n 0 \r\n", "[Bar Code Attendance]\r\n 1 \r\n 1 \r\n")
        .replace("[Date Format]\r\n 6 \r\n", "[Date Format]\r\n 3 \r\n")
        .replace("smtp.\xE9"
                 "cole.example",
                 mailServer);
}

class EditionOptions : public testing::TestWithParam<std::string> {
protected:
    InstalledProgram Installed{NamesOf(GetParam())};
    const QString Menu = Installed.Edition.MenuTitle;
    const QString Options = Installed.Edition.OptionsTitle;
    std::unique_ptr<RunningProgram> Program;

    void OpenOptions() {
        Installed.Write(Newer, WithFolders(Golden(QStringLiteral("start.cfg"))));
        Program = StartToMenu(Installed);
        Program->Press(Menu, QStringLiteral("alt+g"));
        Program->AwaitWindow(Options);
    }

    void ChooseDateFormatThree() {
        Program->Click(Options, QStringLiteral("cmdSetup(1)"));
        Program->Click(Options, QStringLiteral("optDFormat(3)"));
        Program->AwaitControl(Options, QStringLiteral("optDFormat(3)"), QStringLiteral("to be chosen"),
                              [](const auto& option) { return option.Checked; });
    }

    void TypeMailServer(const QString& name) {
        Program->Click(Options, QStringLiteral("cmdSetup(2)"));
        Program->Enter(Options, MailServer, name);
    }
};

INSTANTIATE_TEST_SUITE_P(Editions, EditionOptions, testing::Values("english", "french"),
                         [](const auto& tested) { return tested.param; });

TEST_P(EditionOptions, SavesADateFormatAndAMailServerToTheByte) {
    OpenOptions();
    ChooseDateFormatThree();
    const QString today = Program->AwaitWindow(Options).Control(QStringLiteral("optDFormat(3)")).Text;
    TypeMailServer(QStringLiteral("  mail.board.example "));
    Program->Press(Options, Installed.Edition.SaveKeys);
    Program->AwaitNoWindow(Options);
    AwaitBothFiles(*Program, Installed, Saved(Installed, "mail.board.example"));

    const QString shown = Program->AwaitWindow(Menu).Control(QStringLiteral("lblToday")).Text;
    EXPECT_TRUE(shown.startsWith(today + QStringLiteral("  ("))) << shown.toStdString();
    ExitByKeys(*Program, Installed);
    AwaitBothFiles(*Program, Installed, Saved(Installed, "mail.board.example"));
}

TEST_P(EditionOptions, WritesNothingOnEscape) {
    OpenOptions();
    ChooseDateFormatThree();
    Program->Press(Options, QStringLiteral("Escape"));
    Program->AwaitNoWindow(Options);
    Program->AwaitWindow(Menu);
    EXPECT_EQ(Installed.Read(Newer).toStdString(), WithFolders(Golden(QStringLiteral("start.cfg"))).toStdString());
}

TEST_P(EditionOptions, WarnsOfAnAtSignBeforeSavingByAccessKey) {
    OpenOptions();
    ChooseDateFormatThree();
    TypeMailServer(QStringLiteral("office@board.example"));
    Program->Press(Options, Installed.Edition.SaveKeys);
    const QString warning = QStringLiteral("SMTP ERROR");
    Program->AwaitWindow(warning);
    EXPECT_EQ(Installed.Read(Newer).toStdString(), WithFolders(Golden(QStringLiteral("start.cfg"))).toStdString())
        << "the box's rule runs before the button acts";
    Program->Press(warning, QStringLiteral("Return"));
    Program->AwaitNoWindow(warning);
    Program->AwaitNoWindow(Options);
    AwaitBothFiles(*Program, Installed, Saved(Installed, "office@board.example"));
}

} // namespace
