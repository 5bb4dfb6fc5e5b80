#include "tests/e2e/MenuSteps.h"

#include <QDir>
#include <QFile>
#include <QThread>
#include <gtest/gtest.h>

namespace {

const QString Message = QStringLiteral("Can't find Quick Start");

// The desktop's opener is a script that writes down what it is given and then ends as a test wants it to.
class Help : public testing::Test {
protected:
    std::unique_ptr<RunningProgram> StartWithOpener(const QByteArray& ending) {
        QFile script(tools.filePath(QStringLiteral("xdg-open")));
        EXPECT_TRUE(script.open(QIODevice::WriteOnly));
        const QByteArray part = tools.filePath(QStringLiteral("part")).toUtf8();
        script.write("#!/bin/sh\nprintf '%s\\n' \"$#\" \"$@\" >'" + part + "'\nmv '" + part + "' '" + Given().toUtf8() +
                     "'\n" + ending + "\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return StartToMenu(Installed,
                           {QStringLiteral("PATH=") + tools.path() + QLatin1Char(':') + qEnvironmentVariable("PATH")});
    }

    QString Given() const { return tools.filePath(QStringLiteral("given")); }

    void ExpectGiven(RunningProgram& program) const {
        program.Await(QStringLiteral("the opener"), [this](const SeenScreen&) { return QFile::exists(Given()); });
        QFile given(Given());
        ASSERT_TRUE(given.open(QIODevice::ReadOnly));
        EXPECT_EQ(QString::fromUtf8(given.readAll()).toStdString(),
                  QStringLiteral("1\n%1/Manuals/Gradewell Config.PDF\n").arg(Installed.Folder()).toStdString());
    }

    InstalledProgram Installed{EnglishNames()};
    const QString Menu = Installed.Edition.MenuTitle;

private:
    QTemporaryDir tools;
};

TEST_F(Help, OpensTheManual) {
    const auto program = StartWithOpener("exit 0");
    program->Press(Menu, QStringLiteral("alt+h"));
    ExpectGiven(*program);
    ExitByKeys(*program, Installed); // nothing else is in the way
}

TEST_F(Help, TellsWhenNothingCanShowTheManual) {
    const auto program = StartWithOpener("exit 3");
    program->Press(Menu, QStringLiteral("alt+h"));
    ExpectGiven(*program);
    const SeenWindow box = program->AwaitWindow(Message);
    EXPECT_TRUE(box.Control(QStringLiteral("qt_msgbox_label")).Text.endsWith(QStringLiteral("is not available.")));
    program->Press(Message, QStringLiteral("Return"));
    ExitByKeys(*program, Installed);
}

// The viewer that was opened goes on when the program ends.
TEST_F(Help, LeavesTheManualOpenAtExit) {
    const QString later = Given() + QStringLiteral("-later");
    const QString go = Given() + QStringLiteral("-go");
    const auto program =
        StartWithOpener("until test -e '" + go.toUtf8() + "'; do sleep 0.05; done; : >'" + later.toUtf8() + "'");
    program->Press(Menu, QStringLiteral("alt+h"));
    ExpectGiven(*program);
    ExitByKeys(*program, Installed);
    EXPECT_TRUE(QFile(go).open(QIODevice::WriteOnly));
    for (int looks = 0; looks < 1000 && !QFile::exists(later); ++looks) {
        QThread::msleep(10);
    }
    EXPECT_TRUE(QFile::exists(later));
}

} // namespace
