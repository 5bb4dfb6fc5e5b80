#include "app/CFG_2015.h"
#include "app/MasterCaptions.h"
#include "app/frmCFG_IconOnly.h"
#include "app/frmMaster_SU.h"
#include "platform/widgets/Pictures.h"
#include "tests/support/TestFolder.h"
#include "tests/support/WindowInput.h"

namespace {

const QString Folder = QStringLiteral("c:\\gradewell");
const QString Older = QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG");
const QString Newer = QStringLiteral("c:\\gradewell\\GW_v12_PRG.CFG");

QByteArray WithLock(QByteArray file, const char* lock) {
    return file.replace("Program Config Lock=OFF", QByteArray("Program Config Lock=") + lock);
}

class Menu : public testing::Test {
protected:
    Menu() { Disk.MakeFolder(Folder); }

    void Start(Edition edition = Edition::English) {
        Window = std::make_unique<frmMaster_SU>(Makers);
        ASSERT_TRUE(Window->Form_Load(edition, Folder));
        ShowActive(*Window);
    }

    template <typename Control>
    Control* The(const char* name) const {
        return Find<Control>(*Window, name);
    }

    void ExpectLock(bool locked) const {
        EXPECT_EQ(The<QLabel>("lblLocked")->text(), locked ? QStringLiteral("Locked") : QStringLiteral("Unlocked"));
        EXPECT_EQ(The<QToolButton>("imgLocked")->isVisible(), locked);
        EXPECT_EQ(The<QToolButton>("imgUnlocked")->isVisible(), !locked);
        EXPECT_EQ(ProgramConfig.ConfigLock, locked ? 1 : 0);
    }

    TestFolder Disk;
    OptionWindowMakers Makers;
    std::unique_ptr<frmMaster_SU> Window;
    const QByteArray EveryFieldFile = HandWritten("app/every-field.cfg");
};

TEST_F(Menu, StartsLockedWithDefaultsWhenThereIsNoFile) {
    Start();
    ExpectLock(true);
    EXPECT_EQ(Window->windowTitle(), QStringLiteral("Gradewell 2016 Config"));
    EXPECT_EQ(Window->size(), QSize(800, 600));
    EXPECT_EQ(The<QLabel>("lblVersion")->text(), QStringLiteral("2016 CY"));
    EXPECT_EQ(The<QLabel>("lblClient")->text(), QStringLiteral("2015 12 07"));
    EXPECT_EQ(The<QLabel>("lblToday")->text(), QStringLiteral("Mar. 7, 2016  (Mon.)"));
    EXPECT_EQ(ProgramFolder, Folder);
    EXPECT_EQ(TitleLine, QStringLiteral("[Gradewell 2016 Config - 2016 CY - Copyright (c) 2016]"));
    EXPECT_EQ(LeapYear, 1);
    EXPECT_EQ(Disk.Names(Folder), QStringList()) << "starting writes nothing";
}

TEST_F(Menu, ReadsTheFileBeforeItShows) {
    Disk.Write(Newer, EveryFieldFile);
    Start();
    ExpectLock(false);
    EXPECT_EQ(The<QLabel>("lblToday")->text(), QStringLiteral("7 Mar. 2016  (Mon.)"));
    EXPECT_EQ(ProgramConfig.SMTPHostName, QStringLiteral("mail.school.example"));
}

TEST_F(Menu, AnUnknownDateFormatDoesNotStopTheStart) {
    Disk.Write(Newer, QByteArray(EveryFieldFile).replace("[Date Format]\r\n 6 ", "[Date Format]\r\n 99 "));
    Start();
    EXPECT_EQ(The<QLabel>("lblToday")->text(), QStringLiteral("2016 03 07  (Mon.)"));
    EXPECT_EQ(ProgramConfig.DateFormat, 99) << "shown otherwise, not changed";
}

TEST_F(Menu, BarCodeStartValuesComeBeforeTheFile) {
    ProgramConfig.BarCodeCode = {1, 2, 3};
    ProgramConfig.BarCodeFontName = QStringLiteral("left over");
    Start();
    EXPECT_EQ(ProgramConfig.BarCodeFontName, QString());
    EXPECT_EQ(ProgramConfig.BarCodeCode[2], 0);
}

TEST_F(Menu, EveryWayToToggleTheLockWritesBothFiles) {
    Disk.Write(Newer, EveryFieldFile);
    Start();
    const QByteArray locked = WithLock(EveryFieldFile, "ON");
    const QByteArray unlocked = EveryFieldFile;
    struct Way {
        const char* name;
        std::function<void()> toggle;
    };
    auto* closedLock = The<QToolButton>("imgLocked");
    auto* openLock = The<QToolButton>("imgUnlocked");
    auto* label = The<QLabel>("lblLocked");
    const Way ways[] = {
        {"open lock, mouse", [&] { QTest::mouseClick(openLock, Qt::LeftButton); }},
        {"closed lock, mouse", [&] { QTest::mouseClick(closedLock, Qt::LeftButton); }},
        {"label", [&] { QTest::mouseClick(label, Qt::LeftButton); }},
        {"label again", [&] { QTest::mouseClick(label, Qt::LeftButton); }},
        {"open lock, Space",
         [&] {
             openLock->setFocus();
             QTest::keyClick(openLock, Qt::Key_Space);
         }},
        {"closed lock, Enter, focus kept", [&] { QTest::keyClick(Window->focusWidget(), Qt::Key_Return); }},
    };
    bool lock = false;
    for (const Way& way : ways) {
        SCOPED_TRACE(way.name);
        way.toggle();
        lock = !lock;
        ExpectLock(lock);
        EXPECT_EQ(Disk.Read(Older), lock ? locked : unlocked);
        EXPECT_EQ(Disk.Read(Newer), lock ? locked : unlocked);
    }
    EXPECT_GE(Disk.Screen.PendingEventRounds, 6) << "the new picture is painted before the files are written";
}

TEST_F(Menu, AStrayOrHeldEnterDoesNotWorkTheLock) {
    Start();
    EXPECT_EQ(Window->focusWidget(), The<QPushButton>("cmdGeneral"));
    auto* lock = The<QToolButton>("imgLocked");
    lock->setFocus();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    QApplication::sendEvent(lock, &held);
    ExpectLock(true);
    EXPECT_EQ(Disk.Names(Folder), QStringList());
}

TEST_F(Menu, OnlyTheLeftButtonTogglesByTheLabel) {
    Start();
    QTest::mouseClick(The<QLabel>("lblLocked"), Qt::RightButton);
    ExpectLock(true);
}

TEST_F(Menu, ExitSavesAndEnds) {
    Disk.Write(QStringLiteral("c:\\gradewell\\GdWlPath.cfg"), "x");
    Start();
    QTest::mouseClick(The<QPushButton>("cmdExit"), Qt::LeftButton);
    EXPECT_FALSE(Window->isVisible());
    EXPECT_EQ(Disk.Read(Older), HandWritten("app/defaults.cfg"));
    EXPECT_EQ(Disk.Read(Newer), HandWritten("app/defaults.cfg"));
    EXPECT_EQ(Disk.Names(Folder).size(), 2);
}

TEST_F(Menu, TheCloseButtonIsAnExit) {
    Start();
    Window->close();
    EXPECT_EQ(Disk.Read(Newer), HandWritten("app/defaults.cfg"));
}

TEST_F(Menu, ASaveThatFailsAtExitIsShown) {
    Start();
    Disk.MakeFolder(Newer);
    Disk.Screen.Answer(MessageAnswer::Ok);
    AccessKey(*Window, Qt::Key_X);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Window->isVisible(); }));
    EXPECT_EQ(Disk.Screen.Messages.at(0).Title, QStringLiteral("GW_v12_PRG.CFG SAVE ERROR: 75"));
}

TEST_F(Menu, HelpStartsTheViewerWithTheManual) {
    Start();
    QTest::mouseClick(The<QPushButton>("cmdManual"), Qt::LeftButton);
    ASSERT_EQ(Disk.Screen.Started.size(), 1U);
    EXPECT_EQ(Disk.Screen.Started[0].Program, HelperProgram::FileViewer);
    EXPECT_EQ(Disk.Screen.Started[0].Path, QStringLiteral("c:\\gradewell\\Manuals\\Gradewell Config.PDF"));
    EXPECT_TRUE(Disk.Screen.Messages.empty());
}

TEST_F(Menu, HelpThatCannotStartIsTold) {
    Start();
    Disk.Screen.StartFailure = MakeError(ErrorNumber::FileNotFound);
    Disk.Screen.Answer(MessageAnswer::Ok);
    QTest::keyClick(The<QPushButton>("cmdManual"), Qt::Key_Space);
    ASSERT_EQ(Disk.Screen.Messages.size(), 1U);
    EXPECT_EQ(Disk.Screen.Messages[0].Title, QStringLiteral("Can't find Quick Start"));
    EXPECT_EQ(Disk.Screen.Messages[0].Icon, MessageIcon::Critical);
    EXPECT_EQ(Disk.Screen.Messages[0].Text,
              QStringLiteral("Sorry, the file 'c:\\gradewell\\Manuals\\Gradewell Config.PDF' is not available."));
}

TEST_F(Menu, TheTransferAreaIsThereOnlyWithItsProgram) {
    Start();
    EXPECT_FALSE(The<QGroupBox>("fraTransfer")->isVisible());
    Disk.Write(QStringLiteral("c:\\gradewell\\CNT_2016.exe"), "x");
    Start();
    EXPECT_FALSE(The<QGroupBox>("fraTransfer")->isVisible()) << "the other edition's program";
    Disk.Write(QStringLiteral("c:\\gradewell\\GWTCY_2016.exe"), "x");
    Start();
    EXPECT_TRUE(The<QGroupBox>("fraTransfer")->isVisible());
    Disk.Remove(QStringLiteral("c:\\gradewell\\GWTCY_2016.exe"));
    Disk.MakeFolder(QStringLiteral("c:\\gradewell\\GWTCY_2016.exe"));
    Start();
    EXPECT_FALSE(The<QGroupBox>("fraTransfer")->isVisible()) << "a folder of that name";
    Start(Edition::French);
    EXPECT_TRUE(The<QGroupBox>("fraTransfer")->isVisible());
}

struct ScreenCase {
    int width;
    int height;
    bool asks;
};

TEST_F(Menu, SmallScreensAreAskedAboutBeforeTheMenuShows) {
    for (const auto& [width, height, asks] : {ScreenCase{1024, 576, true}, ScreenCase{800, 600, false},
                                              ScreenCase{799, 600, true}, ScreenCase{800, 599, true}}) {
        Disk.Screen.Screen = QSize(width, height);
        Disk.Screen.Messages.clear();
        if (asks) {
            Disk.Screen.Answer(MessageAnswer::Cancel);
        }
        Start();
        EXPECT_EQ(Disk.Screen.Messages.size(), asks ? 1U : 0U) << width << "x" << height;
        EXPECT_TRUE(Window->isVisible());
    }
}

TEST_F(Menu, OkInTheScreenMessageEndsTheProgram) {
    for (const Edition edition : {Edition::English, Edition::French}) {
        Disk.Screen.Screen = QSize(640, 480);
        Disk.Screen.HasPrinter = false; // the printer is not even looked at
        Disk.Screen.Messages.clear();
        Disk.Screen.Answer(MessageAnswer::Ok);
        frmMaster_SU window(Makers);
        EXPECT_FALSE(window.Form_Load(edition, Folder));
        ASSERT_EQ(Disk.Screen.Messages.size(), 1U);
        const Message& message = Disk.Screen.Messages[0];
        EXPECT_EQ(message.Title, QStringLiteral("ADJUST SCREEN RESOLUTION"));
        EXPECT_EQ(message.Buttons, MessageButtons::OkCancel);
        EXPECT_EQ(message.Icon, MessageIcon::Critical);
        EXPECT_EQ(message.Text,
                  QStringLiteral("This version of %1 Setup requires a screen resolution of at least 800 x "
                                 "600. Please adjust your screen settings.\n\nClick [Cancel] to use your "
                                 "current settings anyway.")
                      .arg(ProductName));
        EXPECT_EQ(Disk.Names(Folder), QStringList()) << "nothing is saved";
    }
}

TEST_F(Menu, ThePrinterIsCheckedBeforeTheFileIsRead) {
    Disk.Write(Newer, EveryFieldFile);
    Disk.Screen.HasPrinter = false;
    QString hostWhenAsked = QStringLiteral("not asked");
    Disk.Screen.Answer(MessageAnswer::Ok, [&] { hostWhenAsked = ProgramConfig.SMTPHostName; });
    Start();
    EXPECT_EQ(hostWhenAsked, QString());
    EXPECT_EQ(Disk.Screen.Messages.size(), 1U);
}

// An options window is made when its button is worked, runs modally, and is gone when the menu is back.
TEST_F(Menu, OptionsWindowsLiveOnlyWhileTheyAreShown) {
    struct Button {
        const char* name;
        OptionWindowMaker OptionWindowMakers::*maker;
    };
    for (const auto& [name, maker] :
         {Button{"cmdGeneral", &OptionWindowMakers::General}, Button{"cmdImport", &OptionWindowMakers::Import},
          Button{"cmdAdmin", &OptionWindowMakers::Admin}, Button{"cmdTransfer", &OptionWindowMakers::Transfer}}) {
        Disk.Write(QStringLiteral("c:\\gradewell\\GWTCY_2016.exe"), "x");
        QPointer<QDialog> made;
        bool modal = false;
        Makers = {};
        Makers.*maker = [&](QWidget* parent) {
            made = new QDialog(parent);
            QTimer::singleShot(0, made, [&] {
                modal = made->isModal() && made->isVisible();
                ProgramConfig.DateFormat = 2;
                made->accept();
            });
            return made.data();
        };
        Start();
        QTest::mouseClick(The<QPushButton>(name), Qt::LeftButton);
        EXPECT_TRUE(modal) << name;
        EXPECT_TRUE(made.isNull()) << name << ": unloaded when the menu became active";
        EXPECT_EQ(The<QLabel>("lblToday")->text(), QStringLiteral("2016/3/7  (Mon.)")) << name;
    }
}

// The captions are set before the file is located, so the French ones name the file of that edition.
TEST_F(Menu, FrenchCaptionsNameTheFrenchFile) {
    Disk.Write(Newer, EveryFieldFile);
    Start(Edition::French);
    EXPECT_TRUE(The<QLabel>("lblGenOpt2")->text().contains(QStringLiteral("'CrNl7PRG.CFG'")));
    EXPECT_TRUE(The<QLabel>("lblGenOpt2")->text().contains(QStringLiteral("Carnelle program folder")));
    EXPECT_EQ(ConfigFileName, QStringLiteral("GW_v12_PRG.CFG"));
    EXPECT_EQ(Window->windowTitle(), QStringLiteral("Carnelle 2016 Config"));
    EXPECT_EQ(The<QLabel>("lblToday")->text(), QStringLiteral("7 mar. 2016  (lun.)"));
}

TEST_F(Menu, AButtonWithoutAWindowOpensNothing) {
    Start();
    QTest::mouseClick(The<QPushButton>("cmdImport"), Qt::LeftButton);
    EXPECT_TRUE(Window->isVisible());
}

TEST_F(Menu, AccessKeysAreUnique) {
    for (const Edition edition : {Edition::English, Edition::French}) {
        Start(edition);
        QStringList keys;
        for (const QPushButton* button : Window->findChildren<QPushButton*>()) {
            const QKeySequence key = QKeySequence::mnemonic(button->text());
            EXPECT_FALSE(key.isEmpty()) << button->objectName().toStdString();
            EXPECT_FALSE(keys.contains(key.toString())) << button->objectName().toStdString();
            keys.append(key.toString());
        }
    }
}

TEST_F(Menu, TheLockLiesWhereItBelongs) {
    Start();
    const auto* frame = The<QGroupBox>("fraGeneral");
    for (const char* name : {"imgLocked", "imgUnlocked"}) {
        auto* lock = The<QToolButton>(name);
        lock->setVisible(true);
        QApplication::processEvents();
        const QPoint place = lock->mapTo(frame, QPoint());
        EXPECT_EQ(place.y(), 16) << name;
        if (lock == The<QToolButton>("imgLocked")) {
            EXPECT_EQ(place.x(), 552);
            lock->setVisible(false);
            The<QToolButton>("imgUnlocked")->setVisible(true);
            QApplication::processEvents();
            EXPECT_EQ(The<QToolButton>("imgUnlocked")->mapTo(frame, QPoint()), QPoint(552, 16));
        }
    }
}

// Every text has the room that it needs, and the window may grow.
TEST_F(Menu, NoTextIsCut) {
    for (const Edition edition : {Edition::English, Edition::French}) {
        Disk.Write(QStringLiteral("c:\\gradewell\\GWTCY_2016.exe"), "x");
        Disk.Write(QStringLiteral("c:\\gradewell\\CNT_2016.exe"), "x");
        Start(edition);
        for (const QSize size : {QSize(800, 600), QSize(1300, 900)}) {
            Window->resize(size);
            QApplication::processEvents();
            EXPECT_EQ(Window->size(), size);
            for (const QLabel* label : Window->findChildren<QLabel*>()) {
                const int needed =
                    label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
                EXPECT_GE(label->height(), needed) << label->objectName().toStdString();
                EXPECT_GE(label->width(), label->wordWrap() ? 100 : label->sizeHint().width())
                    << label->objectName().toStdString();
            }
            for (const QPushButton* button : Window->findChildren<QPushButton*>()) {
                EXPECT_GE(button->width(), button->minimumSizeHint().width()) << button->objectName().toStdString();
            }
        }
    }
}

TEST_F(Menu, TabFollowsTheEye) {
    Disk.Write(QStringLiteral("c:\\gradewell\\GWTCY_2016.exe"), "x");
    Start();
    The<QToolButton>("imgLocked")->setFocus();
    QStringList order{Window->focusWidget()->objectName()};
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(Window->focusWidget(), Qt::Key_Tab);
        order.append(Window->focusWidget()->objectName());
    }
    EXPECT_EQ(order.join(QLatin1Char(' ')).toStdString(),
              "imgLocked cmdGeneral cmdImport cmdAdmin cmdTransfer cmdManual cmdExit");
}

TEST_F(Menu, EveryControlThatTakesTheFocusHasAName) {
    Start();
    for (const QWidget* widget : Window->findChildren<QWidget*>()) {
        if (widget->focusPolicy() != Qt::NoFocus) {
            const QString name =
                QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget))->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty()) << widget->objectName().toStdString();
        }
    }
}

struct CaptionCase {
    const char* control;
    const char* english;
    const char* french;
};

TEST(MenuCaptions, AreExactInBothEditions) {
    const CaptionCase cases[] = {
        {"fraGeneral", "General Options", "General Options"},
        {"lblGenOpt1",
         "Use this to set the default location for teachers to save their data, paths to an external word processor "
         "and "
         "student photographs. Setup email, bar coded attendance, grading schemes and more.",
         "Use this to set the default location for teachers to save their data, paths to an external word processor "
         "and "
         "student photographs. Setup email, bar coded attendance, grading schemes and more."},
        {"lblGenOpt2",
         "Settings are saved in the files 'GW_v11_PRG.CFG and GW_v12_PRG.CFG'. 'Lock' disables the ability of teachers "
         "to "
         "alter default settings. ",
         "Settings are saved in the file 'CrNl7PRG.CFG'. If you choose to 'lock' it, teachers will not be able to "
         "alter "
         "default settings and they will not need permission to write (save) to the Carnelle program folder on a "
         "network. "},
        {"lblGenOpt3", "Click the lock to change", "Click the lock to change"},
        {"cmdGeneral", "&General Options", "&General Options"},
        {"fraImport", "Import Student Data", "Import Student Data"},
        {"lblImport",
         "Use this to set the path, field matches and update options for the file teachers use to setup their classes. "
         "This data file must already exist. Settings are saved in UPDFIELD.CFG in the same folder as the data file.",
         nullptr},
        {"cmdImport", "Setup &Import File", "Setup &Import File"},
        {"fraAdmin", "Admin Edition", "Admin Edition"},
        {"lblAdmin",
         "Use this to set the 'rules' for interpreting course codes and the path to the folder teachers should use to "
         "save their Admin Edition files. These settings are saved in GW_v11_PRG.CFG and GW_v12_PRG.CFGand will be "
         "'locked' if that option is set in the General Options frame.",
         "Use this to set the 'rules' for interpreting course codes and the path to the folder teachers should use to "
         "save their Admin Edition files. These settings are saved in CrNl7PRG.CFG and will be 'locked' if that option "
         "is set in the General Options frame."},
        {"cmdAdmin", "&Admin Edition", "&Admin Edition"},
        {"fraTransfer", "Transfer Program", "Transfer Program"},
        {"lblTransfer",
         "Use this to set options in the Gradewell Transfer Program and the path to the folder teachers should use to "
         "save their Report Card files. ",
         "Use this to set the options in the Gradewell Transfer Program and the path to the folder teachers should use "
         "to save their Report Card files. These settings are saved in CrNl7PRG.CFG."},
        {"cmdTransfer", "&Transfer Program", "&Transfer Program"},
        {"cmdManual", "&Help", "&Help"},
        {"cmdExit", "E&xit", "&Quitter"},
    };
    SetProductTexts(Edition::English);
    const auto english = MasterCaptions(Edition::English);
    SetProductTexts(Edition::French);
    const auto french = MasterCaptions(Edition::French);
    EXPECT_EQ(english.size(), static_cast<qsizetype>(std::size(cases)));
    EXPECT_EQ(french.size(), static_cast<qsizetype>(std::size(cases)));
    for (const auto& [control, inEnglish, inFrench] : cases) {
        EXPECT_EQ(english.value(QString::fromLatin1(control)), QString::fromUtf8(inEnglish)) << control;
        if (inFrench != nullptr) {
            EXPECT_EQ(french.value(QString::fromLatin1(control)), QString::fromUtf8(inFrench)) << control;
        }
    }
    EXPECT_TRUE(french.value(QStringLiteral("lblImport")).contains(QStringLiteral("UPDFIELD.CFG")));
}

TEST(IconWindow, CarriesTheIconInEverySize) {
    const frmCFG_IconOnly window;
    EXPECT_EQ(window.objectName(), QStringLiteral("frmCFG_IconOnly"));
    EXPECT_FALSE(window.isVisible());
    for (const int size : {16, 32, 48, 64}) {
        EXPECT_TRUE(window.windowIcon().availableSizes().contains(QSize(size, size))) << size;
    }
}

} // namespace
