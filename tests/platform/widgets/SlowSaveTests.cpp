#include "platform/Files.h"
#include "platform/MappedVolumes.h"
#include "platform/qt/QtDesktop.h"
#include "platform/widgets/ButtonAccess.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/PrintText.h"
#include "tests/support/WindowInput.h"

#include <QAccessible>
#include <QMutex>
#include <QWaitCondition>

// What the desktop of the running program does while a save takes long.

namespace {

const QString Saved = QStringLiteral("c:\\saved.cfg");

/// The desktop with a window over a share that can be stalled: the sync of a file then hangs until it recovers.
class SlowSave : public testing::Test {
protected:
    explicit SlowSave(CaptionLanguage language = CaptionLanguage::English)
        : Screen(std::make_unique<MappedVolumes>(Calls, DriveTable{{u'c', NativePath(Folder.path().toStdU16String())}}),
                 Calls, language),
          Before(InstallDesktop(&Screen)), Button(new QPushButton(QStringLiteral("Press"), &Window)) {
        Calls.Before = [this](FaultyCalls::Kind kind) {
            const QMutexLocker guard(&Lock);
            while (kind == FaultyCalls::Kind::Sync && Stalled) {
                Recovered.wait(&Lock);
            }
        };
        QObject::connect(Button, &QPushButton::clicked, [this] { ++Clicks; });
        QObject::connect(&Watch, &QTimer::timeout, [this] { RecoverOnceShown(); });
        Window.resize(400, 300);
    }
    ~SlowSave() override { InstallDesktop(Before); }

    void SetUp() override { ShowActive(Window); }

    QLabel* Notice() const { return Window.findChild<QLabel*>(QStringLiteral("SavingNotice")); }

    /// Saves on the stalled share, which recovers as soon as the window has shown that it waits.
    SystemError SaveStalled(const std::function<void()>& lookWhileShown) {
        WhileShown = lookWhileShown;
        Stalled = true;
        Watch.start(1);
        SystemError error = RunSave([] { return SaveWholeFile(Saved, "new"); });
        Watch.stop();
        return error;
    }

    QTemporaryDir Folder;
    FaultyCalls Calls;
    QtDesktop Screen;
    Desktop* Before;
    QWidget Window;
    QPushButton* Button;
    int Clicks = 0;
    int TimesShown = 0;

private:
    QMutex Lock;
    QWaitCondition Recovered;
    bool Stalled = false;
    QTimer Watch;
    std::function<void()> WhileShown;

    void RecoverOnceShown() {
        if (Notice() == nullptr || !Notice()->isVisible()) {
            return;
        }
        Watch.stop();
        ++TimesShown;
        WhileShown();
        const QMutexLocker guard(&Lock);
        Stalled = false;
        Recovered.wakeAll();
    }
};

class FrenchSlowSave : public SlowSave {
protected:
    FrenchSlowSave() : SlowSave(CaptionLanguage::French) {}
};

TEST_F(SlowSave, SaysThatItWorksAndTakesThatAwayAgain) {
    Button->setFocus();
    EXPECT_FALSE(SaveStalled([this] {
        EXPECT_EQ(Notice()->text(), QStringLiteral("Saving..."));
        EXPECT_TRUE(Window.rect().contains(Notice()->geometry()));
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        EXPECT_TRUE(Button->hasFocus()) << "the notice takes nothing away";
        EXPECT_FALSE(QFile::exists(Folder.filePath(QStringLiteral("saved.cfg")))) << "the save still hangs";
    }));
    EXPECT_EQ(TimesShown, 1);
    EXPECT_EQ(Notice(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(ReadWholeFile(Saved).Bytes, QByteArray("new"));
}

TEST_F(FrenchSlowSave, SaysSoInFrench) {
    SaveStalled([this] { EXPECT_EQ(Notice()->text(), QStringLiteral("Enregistrement en cours...")); });
    EXPECT_EQ(TimesShown, 1);
}

TEST_F(SlowSave, GivesItsError) {
    Calls.FailAll(FaultyCalls::Kind::Replace, ENOSPC);
    EXPECT_EQ(SaveStalled([] {}).Number, 61);
    EXPECT_EQ(TimesShown, 1);
    EXPECT_EQ(RunSave([] { return SaveWholeFile(Saved, "new"); }).Number, 61) << "a fast one, too";
}

TEST_F(SlowSave, ShowsNothingOfAFastOne) {
    EXPECT_FALSE(RunSave([] { return SaveWholeFile(Saved, "fast"); }));
    EXPECT_EQ(ReadWholeFile(Saved).Bytes, QByteArray("fast"));
    EXPECT_EQ(Notice(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// A button that its access key has pushed clicks by a timer, in the middle of a save if nothing kept it back.
TEST_F(SlowSave, APushedButtonClicksOnceAfterIt) {
    Button->animateClick();
    SaveStalled([this] {
        QTest::qWait(0);
        EXPECT_EQ(Clicks, 0);
    });
    EXPECT_EQ(TimesShown, 1);
    EXPECT_EQ(Clicks, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Clicks > 0; }));
    EXPECT_EQ(Clicks, 1);
    EXPECT_FALSE(Button->isDown());
}

TEST_F(SlowSave, AScreenReadersPressActsOnceAfterIt) {
    InstallButtonAccess();
    QPushButton pressed(QStringLiteral("Read"), &Window);
    pressed.show();
    int presses = 0;
    QObject::connect(&pressed, &QPushButton::clicked, [&presses] { ++presses; });
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&pressed);
    ASSERT_NE(access, nullptr);
    SaveStalled([&] {
        access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCoreApplication::processEvents();
        EXPECT_EQ(presses, 0);
    });
    EXPECT_EQ(TimesShown, 1);
    EXPECT_EQ(presses, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return presses > 0; }));
    EXPECT_EQ(presses, 1);
}

} // namespace
