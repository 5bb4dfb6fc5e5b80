#include "tests/app/MenuFixture.h"

namespace {

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
    EXPECT_GE(Disk.Screen.PaintRounds, 6) << "the new picture is painted before the files are written";
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
    EXPECT_EQ(Disk.Screen.Messages[0].Buttons, MessageButtons::Ok);
    EXPECT_EQ(MsgAnswer, static_cast<std::int16_t>(MessageAnswer::Ok));
    EXPECT_EQ(Disk.Screen.Messages[0].Text,
              QStringLiteral("Sorry, the file 'c:\\gradewell\\Manuals\\Gradewell Config.PDF' is not available."));
}

// The desktop's opener was started, found nothing to show the manual with, and ended with failure.
TEST_F(Menu, HelpThatFailsLaterIsTold) {
    Start();
    QTest::mouseClick(The<QPushButton>("cmdManual"), Qt::LeftButton);
    ASSERT_EQ(Disk.Screen.Started.size(), 1U);
    EXPECT_TRUE(Disk.Screen.Messages.empty());
    Disk.Screen.Answer(MessageAnswer::Ok);
    Window.reset(); // even then
    Disk.Screen.Started[0].WhenFailed();
    ASSERT_EQ(Disk.Screen.Messages.size(), 1U);
    EXPECT_EQ(Disk.Screen.Messages[0].Title, QStringLiteral("Can't find Quick Start"));
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
        EXPECT_EQ(MsgAnswer, static_cast<std::int16_t>(MessageAnswer::Ok));
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

} // namespace
