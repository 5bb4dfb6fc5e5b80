#include "app/MasterCaptions.h"
#include "app/frmCFG_IconOnly.h"
#include "tests/app/MenuFixture.h"

namespace {

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

TEST(IconWindow, CarriesTheIconInEverySizeOfAPlainScreen) {
    const frmCFG_IconOnly window;
    EXPECT_EQ(window.objectName(), QStringLiteral("frmCFG_IconOnly"));
    EXPECT_FALSE(window.isVisible());
    for (const int size : {16, 32, 48}) {
        EXPECT_TRUE(window.windowIcon().availableSizes().contains(QSize(size, size))) << size;
    }
}

} // namespace
