#include "app/CFG_2015.h"
#include "app/frmMaster_SU.h"
#include "platform/qt/SlowSave.h"
#include "tests/screens/Scene.h"
#include "tests/screens/Windows.h"

#include <QLabel>
#include <QSemaphore>
#include <QTimer>

// The save ends as soon as its notice has been looked at.
void TakeSaving(Edition edition, Viewer& viewer) {
    constexpr int betweenLooks = 10; // milliseconds
    const Scene scene(edition);
    frmMaster_SU menu({});
    menu.Form_Load(edition, ProgramFolder);
    menu.show();
    QSemaphore recovered;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (menu.findChild<QLabel*>(QStringLiteral("SavingNotice")) != nullptr) {
            look.stop();
            viewer.Take(menu, "menu-saving");
            recovered.release();
        }
    });
    look.start(betweenLooks);
    const CaptionLanguage language = edition == Edition::French ? CaptionLanguage::French : CaptionLanguage::English;
    RunSlowSave([&recovered] { recovered.acquire(); }, &menu, language);
}
