#include "platform/MappedVolumes.h"
#include "platform/qt/FileDialogRules.h"
#include "platform/qt/QtDesktop.h"
#include "tests/support/PrintText.h"
#include "tests/support/WindowInput.h"

// The desktop of the running program, with Qt's own message boxes and file dialogs.

namespace {

class RealDesktop : public testing::Test {
protected:
    explicit RealDesktop(CaptionLanguage language = CaptionLanguage::English)
        : Screen(std::make_unique<MappedVolumes>(RealSystemCalls(),
                                                 DriveTable{{u'c', NativePath(Folder.path().toStdU16String())}}),
                 RealSystemCalls(), language) {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

    // Runs `act` as soon as a window of the kind is the modal one.
    template <typename Kind>
    static void WhenShown(const std::function<void(Kind&)>& act) {
        QTimer::singleShot(0, qApp, [act] {
            auto* shown = qobject_cast<Kind*>(QApplication::activeModalWidget());
            if (shown == nullptr) {
                WhenShown(act);
            } else {
                act(*shown);
            }
        });
    }

    QString Native(const char* name) const { return Folder.filePath(QString::fromUtf8(name)); }

    QTemporaryDir Folder;
    QtDesktop Screen;
};

class FrenchDesktop : public RealDesktop {
protected:
    FrenchDesktop() : RealDesktop(CaptionLanguage::French) {}
};

struct ButtonCase {
    MessageButtons buttons;
    std::vector<std::pair<const char*, MessageAnswer>> shown;
};

void ExpectButtons(Desktop& desktop, const std::vector<ButtonCase>& cases,
                   void (*whenShown)(const std::function<void(QMessageBox&)>&)) {
    for (const ButtonCase& row : cases) {
        for (const auto& [text, answer] : row.shown) {
            QStringList texts;
            whenShown([&texts, wanted = QString::fromUtf8(text)](QMessageBox& box) {
                QAbstractButton* chosen = nullptr;
                for (QAbstractButton* button : box.buttons()) {
                    texts.append(button->text());
                    chosen = button->text() == wanted ? button : chosen;
                }
                chosen != nullptr ? chosen->click() : box.reject();
            });
            MsgAnswer = 0;
            EXPECT_EQ(desktop.ShowMessage({QStringLiteral("T"), QStringLiteral("t"), row.buttons, {}}), answer) << text;
            EXPECT_EQ(MsgAnswer, static_cast<std::int16_t>(answer)) << text;
            EXPECT_EQ(texts.size(), qsizetype(row.shown.size())) << texts.join(u'|').toStdString();
        }
    }
}

TEST_F(RealDesktop, EveryButtonAnswersAndIsKept) {
    ExpectButtons(Screen,
                  {{MessageButtons::Ok, {{"OK", MessageAnswer::Ok}}},
                   {MessageButtons::OkCancel, {{"OK", MessageAnswer::Ok}, {"Cancel", MessageAnswer::Cancel}}},
                   {MessageButtons::YesNo, {{"&Yes", MessageAnswer::Yes}, {"&No", MessageAnswer::No}}},
                   {MessageButtons::RetryCancel, {{"Retry", MessageAnswer::Retry}, {"Cancel", MessageAnswer::Cancel}}}},
                  WhenShown<QMessageBox>);
}

TEST_F(FrenchDesktop, ButtonsAreFrench) {
    ExpectButtons(
        Screen,
        {{MessageButtons::Ok, {{"OK", MessageAnswer::Ok}}},
         {MessageButtons::OkCancel, {{"OK", MessageAnswer::Ok}, {"Annuler", MessageAnswer::Cancel}}},
         {MessageButtons::YesNo, {{"&Oui", MessageAnswer::Yes}, {"&Non", MessageAnswer::No}}},
         {MessageButtons::RetryCancel, {{"Réessayer", MessageAnswer::Retry}, {"Annuler", MessageAnswer::Cancel}}}},
        WhenShown<QMessageBox>);
}

TEST_F(FrenchDesktop, DialogsAndMenusAreFrench) {
    QStringList texts;
    WhenShown<QFileDialog>([&texts](QFileDialog& asked) {
        for (const QAbstractButton* button : asked.findChildren<QAbstractButton*>()) {
            texts.append(button->text());
        }
        for (const QLabel* label : asked.findChildren<QLabel*>()) {
            texts.append(label->text());
        }
        asked.reject();
    });
    FileDialog dialog;
    dialog.DialogKind = FileDialog::Kind::Save;
    EXPECT_TRUE(Screen.AskForFile(dialog).Error);
    for (const char* text : {"&Enregistrer", "Annuler", "&Nom du fichier :", "Type de fichiers :"}) {
        EXPECT_TRUE(texts.contains(QString::fromUtf8(text))) << text << " in " << texts.join(u'|').toStdString();
    }
    QLineEdit box;
    const std::unique_ptr<QMenu> menu(box.createStandardContextMenu());
    EXPECT_TRUE(menu->actions().constFirst()->text().startsWith(QStringLiteral("&Annuler")));
}

TEST_F(RealDesktop, QtsTextsAreEnglishAgainAfterTheFrenchDesktop) {
    { const QtDesktop french(nullptr, RealSystemCalls(), CaptionLanguage::French); }
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancel"));
    const QtDesktop french(nullptr, RealSystemCalls(), CaptionLanguage::French);
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Annuler"));
    EXPECT_EQ(QCoreApplication::translate("frmMaster_SU", "Cancel"), QStringLiteral("Cancel")) << "not Qt's own";
}

TEST_F(RealDesktop, AFileDialogOpensInTheProposedFolder) {
    ASSERT_TRUE(QDir(Folder.path()).mkdir(QStringLiteral("photos")));
    for (const char* proposed : {"c:\\photos\\", "c:\\photos\\Don't_Delete_Me"}) {
        for (const FileDialog::Kind kind : {FileDialog::Kind::Open, FileDialog::Kind::Save}) {
            QString shown;
            QString type;
            WhenShown<QFileDialog>([&](QFileDialog& asked) {
                shown = asked.directory().absolutePath();
                type = asked.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->currentText();
                asked.reject();
            });
            FileDialog dialog;
            dialog.DialogKind = kind;
            dialog.Filter = QStringLiteral("JPeg (*.jpg)|*.jpg");
            dialog.FileName = QString::fromLatin1(proposed);
            EXPECT_TRUE(Screen.AskForFile(dialog).Error);
            EXPECT_EQ(shown, Native("photos")) << proposed;
            EXPECT_EQ(type, QStringLiteral("JPeg (*.jpg)"));
        }
    }
}

TEST_F(RealDesktop, AChosenNameKeepsToTheFlags) {
    ASSERT_TRUE(QFile(Native("there.txt")).open(QIODevice::WriteOnly));
    struct Row {
        const char* name;
        bool pathMustExist;
        bool fileMustExist;
        const char* objection;
    };
    for (const Row& row :
         {Row{"there.txt", true, true, ""}, Row{"new.txt", true, false, ""}, Row{"new.txt", false, false, ""},
          Row{"gone/new.txt", false, false, ""}, Row{"gone/new.txt", true, false, "folder does not exist"},
          Row{"gone/new.txt", false, true, "folder does not exist"}, Row{"new.txt", false, true, "file does not"},
          Row{"", false, true, "file does not"}}) {
        FileDialog dialog;
        dialog.PathMustExist = row.pathMustExist;
        dialog.FileMustExist = row.fileMustExist;
        const QString objection = ObjectionTo(Native(row.name), dialog, CaptionLanguage::English);
        EXPECT_EQ(objection.isEmpty(), *row.objection == '\0') << row.name;
        EXPECT_TRUE(objection.contains(QString::fromUtf8(row.objection))) << objection.toStdString();
        const QString french = ObjectionTo(Native(row.name), dialog, CaptionLanguage::French);
        EXPECT_EQ(french.isEmpty(), objection.isEmpty());
        EXPECT_TRUE(french.isEmpty() || french.contains(QStringLiteral("n'existe pas"))) << french.toStdString();
    }
}

// Types a name that is refused, reads the message, and then a good one.
TEST_F(RealDesktop, ASaveDialogStaysUntilTheFolderExists) {
    FileDialog dialog;
    dialog.DialogKind = FileDialog::Kind::Save;
    dialog.Title = QStringLiteral("Locate");
    dialog.FileName = QStringLiteral("c:\\Don't_Delete_Me");
    dialog.PathMustExist = true;
    const auto type = [](QFileDialog& asked, const QString& name) {
        asked.findChild<QLineEdit*>()->setText(name);
        QMetaObject::invokeMethod(&asked, "accept", Qt::QueuedConnection);
    };
    QString told;
    WhenShown<QFileDialog>([&](QFileDialog& asked) {
        type(asked, Native("gone/Don't_Delete_Me"));
        WhenShown<QMessageBox>([&](QMessageBox& box) {
            told = box.windowTitle() + box.text();
            WhenShown<QFileDialog>([&](QFileDialog& again) { type(again, Native("Don't_Delete_Me")); });
            box.accept();
        });
    });
    const FileDialogAnswer answer = Screen.AskForFile(dialog);
    EXPECT_FALSE(answer.Error);
    EXPECT_EQ(answer.FileName, QStringLiteral("c:\\Don't_Delete_Me"));
    EXPECT_TRUE(told.startsWith(QStringLiteral("Locate["))) << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral("The folder does not exist."))) << told.toStdString();
}

#ifndef _WIN32

// The opener that the machine has is a script of the test.
class Opener : public RealDesktop {
protected:
    Opener() {
        PathBefore = qgetenv("PATH");
        qputenv("PATH", Folder.path().toUtf8() + ":" + PathBefore);
        EXPECT_TRUE(QFile(Native("manual.pdf")).open(QIODevice::WriteOnly));
    }
    ~Opener() override { qputenv("PATH", PathBefore); }

    // Waits until the script has written what it was given.
    QByteArray Given() const {
        QFile given(Native("given"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return given.exists() && given.size() > 0; }));
        return given.open(QIODevice::ReadOnly) ? given.readAll() : QByteArray();
    }

    void MakeOpener(const char* ending) const {
        QFile script(Native("xdg-open"));
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nprintf '%s\\n' \"$#\" \"$@\" >'" + Native("part").toUtf8() + "'\nmv '" +
                     Native("part").toUtf8() + "' '" + Native("given").toUtf8() + "'\n" + ending + "\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    SystemError Start() {
        return Screen.StartProgram(HelperProgram::FileViewer, QStringLiteral("c:\\manual.pdf"), [this] { ++Failures; });
    }

    QByteArray PathBefore;
    int Failures = 0;
};

TEST_F(Opener, GetsTheFileAsItsOneArgument) {
    MakeOpener("exit 0");
    EXPECT_FALSE(Start());
    EXPECT_EQ(Given(), "1\n" + Native("manual.pdf").toUtf8() + "\n");
}

TEST_F(Opener, ThatEndsWithFailureAtOnceIsTold) {
    for (const char* ending : {"exit 3", "exit 4", "kill -9 $$"}) {
        MakeOpener(ending);
        Failures = 0;
        EXPECT_FALSE(Start()) << "it was started";
        EXPECT_EQ(Failures, 0) << "nobody waits for it";
        EXPECT_TRUE(QTest::qWaitFor([this] { return Failures == 1; })) << ending;
    }
}

TEST_F(Opener, ThatEndsWellIsNotTold) {
    MakeOpener("exit 0");
    EXPECT_FALSE(Start());
    Given();
    // A second one fails: when that is told, the first has long ended.
    MakeOpener("exit 3");
    EXPECT_FALSE(Start());
    EXPECT_TRUE(QTest::qWaitFor([this] { return Failures > 0; }));
    EXPECT_EQ(Failures, 1);
}

TEST_F(Opener, ThatCannotBeStartedOrHasNoFileIsAnError) {
    MakeOpener("exit 0");
    EXPECT_EQ(Screen.StartProgram(HelperProgram::FileViewer, QStringLiteral("c:\\gone.pdf"), {}).Number, 53);
    QFile script(Native("xdg-open"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly | QIODevice::Truncate));
    script.write("#!/gone/interpreter\n");
    script.close();
    EXPECT_EQ(Start().Number, 53);
    EXPECT_EQ(Failures, 0);
}

#endif

} // namespace
