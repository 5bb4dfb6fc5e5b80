#include "tests/screens/Windows.h"

#include "admin/frmAdmin_SU.h"
#include "app/CFG_2015.h"
#include "app/frmMaster_SU.h"
#include "import/frmImport_SU.h"
#include "options/frmSetUp_SU.h"
#include "platform/CodePage.h"
#include "platform/widgets/Pictures.h"
#include "tests/screens/Scene.h"
#include "transfer/frmGWT_SU.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <stdexcept>

namespace {

template <typename Control>
Control& ControlOf(const QWidget& window, const QString& name) {
    auto* control = window.findChild<Control*>(name);
    if (control == nullptr) {
        throw std::runtime_error("There is no control " + name.toStdString());
    }
    return *control;
}

// Being shown, the window opens the file of the settings or asks for one.
void TakeImportWith(bool frenchCaptions, const char* name, Viewer& viewer) {
    frmImport_SU window;
    if (frenchCaptions) {
        window.SpeakFrench_ImportSU();
    }
    viewer.Take(window, name);
}

// What a user sees while a share lets the count wait.
void TakeLoadingImport(Scene& scene, Viewer& viewer) {
    constexpr int readsBeforeTheCount = 4;
    constexpr int betweenLooks = 10; // milliseconds
    frmImport_SU window;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (scene.Disk.IsStalled() && window.preview->imgLoading->isVisible()) {
            look.stop();
            viewer.Take(window, "import-loading");
            scene.Disk.Recover();
        }
    });
    look.start(betweenLooks);
    scene.Disk.StallAfter(readsBeforeTheCount);
    window.show();
    if (!QTest::qWaitFor([&] { return window.preview->lblRecordCount->isVisible(); }) || look.isActive()) {
        throw std::runtime_error("The import file was not counted slowly");
    }
}

void TakeAdminWith(bool frenchCaptions, const char* name, Viewer& viewer) {
    frmAdmin_SU window;
    if (frenchCaptions) {
        window.SpeakFrench_Admin();
    }
    ControlOf<QLineEdit>(window, QStringLiteral("txtAdminTest")).setText(QStringLiteral("ENG2D1-02"));
    window.TestCourseCode();
    viewer.Take(window, name);
}

void TakeTransferWith(Scene& scene, const char* file, bool frenchCaptions, const char* name, Viewer& viewer) {
    scene.Machine.Write(ProgramFolder + QStringLiteral("\\GWT10_PRG.CFG"), HandWritten(file));
    frmGWT_SU window;
    if (frenchCaptions) {
        window.SpeakFrench_GWT();
    }
    viewer.Take(window, name);
}

} // namespace

void TakeMenu(Edition edition, Viewer& viewer) {
    Scene scene(edition);
    scene.AddTransferProgram();
    frmMaster_SU menu({});
    menu.Form_Load(edition, ProgramFolder);
    viewer.Take(menu, "menu");
    menu.fraGeneral->imgUnlocked->click();
    viewer.Take(menu, "menu-locked");
    scene.Machine.Remove(ProgramFolder + u'\\' + TransferExeName);
    frmMaster_SU smaller({});
    smaller.Form_Load(edition, ProgramFolder);
    viewer.Take(smaller, "menu-without-transfer");
}

void TakeGeneralOptions(Edition edition, Viewer& viewer) {
    Scene scene(edition);
    frmSetUp_SU window;
    const char* panels[] = {"paths", "dates", "mail", "bar-codes", "printer", "html-report", "grade-schemes"};
    int index = 0;
    for (const char* panel : panels) {
        ControlOf<QPushButton>(window, QStringLiteral("cmdSetup(%1)").arg(index++)).click();
        viewer.Take(window, (std::string("general-options-") + panel).c_str());
    }
    ControlOf<QLineEdit>(window, QStringLiteral("txtABCChr(2)")).setText(QStringLiteral("d-"));
    ControlOf<QLineEdit>(window, QStringLiteral("txtABCVal(4)")).clear();
    scene.Machine.Screen.Answer(MessageAnswer::Ok);
    ControlOf<QPushButton>(window, QStringLiteral("cmdABCCheck")).click();
    viewer.Take(window, "general-options-scheme-problems");
    ControlOf<QPushButton>(window, QStringLiteral("cmdClearScheme")).click();
    viewer.Take(window, "general-options-scheme-cleared");
}

void TakeImport(Edition edition, Viewer& viewer) {
    Scene scene(edition);
    scene.Machine.Write(ProgramFolder + QStringLiteral("\\UpdField.cfg"), HandWritten("import/UpdField-three.cfg"));
    TakeImportWith(false, "import", viewer);
    if (edition == Edition::French) {
        TakeImportWith(true, "import-french-captions", viewer);
    }
    TakeLoadingImport(scene, viewer);
    scene.Machine.Remove(ProgramFolder + QStringLiteral("\\UpdField.cfg"));
    const QString students = ProgramFolder + QStringLiteral("\\students.txt");
    scene.Machine.Write(students, TextFromBytes(scene.Machine.Read(students)).toUtf8());
    TakeImportWith(false, "import-utf-8", viewer);
    scene.Machine.Write(students, QByteArray());
    scene.Machine.Screen.Answer(MessageAnswer::Ok);
    TakeImportWith(false, "import-empty", viewer);
}

void TakeAdmin(Edition edition, Viewer& viewer) {
    const Scene scene(edition);
    TakeAdminWith(false, "admin", viewer);
    if (edition == Edition::French) {
        TakeAdminWith(true, "admin-french-captions", viewer);
    }
}

void TakeTransfer(Edition edition, Viewer& viewer) {
    Scene scene(edition);
    scene.Machine.MakeFolder(QString::fromUtf8("c:\\reports\\été 2016"));
    TakeTransferWith(scene, "transfer/secondary.cfg", false, "transfer", viewer);
    TakeTransferWith(scene, "transfer/windsor.cfg", false, "transfer-work-habits", viewer);
    if (edition == Edition::French) {
        TakeTransferWith(scene, "transfer/secondary.cfg", true, "transfer-french-captions", viewer);
        TakeTransferWith(scene, "transfer/windsor.cfg", true, "transfer-work-habits-french-captions", viewer);
    }
}
