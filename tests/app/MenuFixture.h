#pragma once

#include "app/CFG_2015.h"
#include "app/frmMaster_SU.h"
#include "platform/widgets/Pictures.h"
#include "tests/support/TestFolder.h"
#include "tests/support/WindowInput.h"

inline const QString Folder = QStringLiteral("c:\\gradewell");
inline const QString Older = QStringLiteral("c:\\gradewell\\GW_v11_PRG.CFG");
inline const QString Newer = QStringLiteral("c:\\gradewell\\GW_v12_PRG.CFG");

inline QByteArray WithLock(QByteArray file, const char* lock) {
    return file.replace("Program Config Lock=OFF", QByteArray("Program Config Lock=") + lock);
}

/// The main menu in a program folder of its own.
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
