#include "platform/MappedVolumes.h"
#include "platform/qt/QtDesktop.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>
#include <gtest/gtest.h>

// The program's own desktop starts programs that only write down what they were given.

namespace {

const char Recorder[] = "#!/bin/sh\n"
                        "{ printf '%s\\0' \"$0\"; for given; do printf '%s\\0' \"$given\"; done; } >\"$RECORD.part\"\n"
                        "exec mv \"$RECORD.part\" \"$RECORD\"\n";

// File names that a shell, or a program that reads options, would take for something else.
const char* const OddNames[] = {
    "plain.txt",
    "two words.txt",
    "a\"b.txt",
    "\"quoted\"",
    "a'b.txt",
    "'; touch pwned; '",
    "\"; touch pwned; \"",
    "a&b.txt",
    "& touch pwned &",
    "| touch pwned",
    "; touch pwned",
    "$(touch pwned)",
    "`touch pwned`",
    "$HOME",
    "${IFS}",
    "> pwned",
    "< pwned",
    "* ? [a-z]",
    "{a,b}",
    "~",
    "#comment",
    "!history",
    "-rf",
    "--help",
    "-e touch pwned",
    "-",
    "--",
    "%s%n %f %u",
    "http:--example.org",
    "a=b",
    "(a)",
    "line\nend.txt",
    "tab\tstop.txt",
    "\xC3\x89t\xC3\xA9 2016.txt",
};

class ChildPrograms : public testing::Test {
protected:
    ChildPrograms()
        : desktop(std::make_unique<MappedVolumes>(RealSystemCalls(), DriveTable{{QLatin1Char('c'), Native(QString())}}),
                  RealSystemCalls()) {
        QDir(root.path()).mkdir(QStringLiteral("bin"));
        QDir(root.path()).mkdir(QStringLiteral("place"));
        qputenv("PATH", (root.path() + QStringLiteral("/bin:/usr/bin:/bin")).toUtf8());
        qputenv("RECORD", Record().toUtf8());
    }
    ~ChildPrograms() override {
        qputenv("PATH", oldPath);
        qunsetenv("EDITOR");
        qunsetenv("RECORD");
    }

    NativePath Native(const QString& below) const { return NativePath((root.path() + below).toStdU16String()); }
    QString Record() const { return root.path() + QStringLiteral("/record"); }

    QString Install(const char* program) {
        const QString path = root.path() + QStringLiteral("/bin/") + QString::fromUtf8(program);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(Recorder) > 0) << program;
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        return path;
    }
    QString NativeText(const char* name) const {
        return root.path() + QStringLiteral("/place/") + QString::fromUtf8(name);
    }
    void MakeFile(const char* name) {
        QFile file(NativeText(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name;
    }

    /// Starts the program for a file of that name; what was started with which arguments.
    QStringList Start(HelperProgram program, const char* name) {
        QFile::remove(Record());
        const QString path = QStringLiteral("c:\\place\\") + QString::fromUtf8(name);
        const SystemError error = desktop.StartProgram(program, path, {});
        EXPECT_FALSE(error) << name;
        EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(Record()); }, 30'000)) << name;
        QFile record(Record());
        EXPECT_TRUE(record.open(QIODevice::ReadOnly)) << name;
        QStringList given = QString::fromUtf8(record.readAll()).split(QChar(u'\0'));
        given.removeLast();
        return given;
    }
    QStringList Names() const {
        return QDir(root.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    const QByteArray oldPath = qgetenv("PATH");
    QTemporaryDir root;
    QtDesktop desktop;
};

TEST_F(ChildPrograms, GetTheFileAsTheirOneArgumentAndNothingElseHappens) {
    const QString opener = Install("xdg-open");
    const QStringList folder = {QStringLiteral("bin"), QStringLiteral("place"), QStringLiteral("record")};
    for (const char* name : OddNames) {
        MakeFile(name);
        for (const HelperProgram program : {HelperProgram::FileViewer, HelperProgram::TextEditor}) {
            EXPECT_EQ(Start(program, name), QStringList({opener, NativeText(name)})) << name;
            EXPECT_EQ(Names(), folder) << name;
        }
        EXPECT_TRUE(QFile::remove(NativeText(name))) << name;
    }
    EXPECT_FALSE(QFile::exists(QStringLiteral("pwned")));
    EXPECT_TRUE(QDir(root.path() + QStringLiteral("/place")).isEmpty());
}

TEST_F(ChildPrograms, TheEditorGetsAFileThatIsNotThereYetAsItsLastArgument) {
    const QString terminal = Install("x-terminal-emulator");
    const QString editor = Install("ed-it");
    const QString spaced = Install("my editor");
    const struct {
        QString Editor;
        QStringList Words; // of the command before the file
    } cases[] = {
        {QStringLiteral("ed-it"), {editor}},
        {editor, {editor}},
        {QStringLiteral("ed-it -nw --wait"), {editor, QStringLiteral("-nw"), QStringLiteral("--wait")}},
        {QStringLiteral("  ed-it   -w  "), {editor, QStringLiteral("-w")}},
        {QStringLiteral("ed-it \"two words\""), {editor, QStringLiteral("two words")}},
        {QStringLiteral("ed-it $(touch pwned) ; touch pwned"),
         {editor, QStringLiteral("$(touch"), QStringLiteral("pwned)"), QStringLiteral(";"), QStringLiteral("touch"),
          QStringLiteral("pwned")}},
        {spaced, {spaced}},
        {QStringLiteral("\"%1\" -w").arg(spaced), {spaced, QStringLiteral("-w")}},
    };
    for (const auto& row : cases) {
        qputenv("EDITOR", row.Editor.toUtf8());
        for (const char* name : {"WorkHabits.txt", "$(touch pwned)", "-rf", "a\"b'c&d"}) {
            const QStringList expected =
                QStringList{terminal, QStringLiteral("-e")} + row.Words + QStringList{NativeText(name)};
            EXPECT_EQ(Start(HelperProgram::TextEditor, name), expected) << row.Editor.toStdString() << " " << name;
        }
    }
    EXPECT_TRUE(QDir(root.path() + QStringLiteral("/place")).isEmpty());
    EXPECT_FALSE(QFile::exists(QStringLiteral("pwned")));
}

TEST_F(ChildPrograms, AnEditorThatIsNotThereIsToldAndNothingIsStarted) {
    Install("x-terminal-emulator");
    for (const char* editor : {"", "   ", "no-such-editor", "no-such-editor -w", "\"no such\" -w", "$(ed-it)", "\""}) {
        qputenv("EDITOR", editor);
        const SystemError error =
            desktop.StartProgram(HelperProgram::TextEditor, QStringLiteral("c:\\place\\x.txt"), {});
        EXPECT_EQ(error.Number, 53) << editor;
    }
    EXPECT_FALSE(QFile::exists(Record()));
}

} // namespace
