#include "admin/frmAdmin_SU.h"
#include "app/BuiltEdition.h"
#include "app/frmCFG_IconOnly.h"
#include "app/frmMaster_SU.h"
#include "import/frmImport_SU.h"
#include "options/frmSetUp_SU.h"
#include "platform/ProgramDrives.h"
#include "platform/Volumes.h"
#include "platform/qt/QtDesktop.h"
#include "platform/widgets/ProgramStyle.h"
#include "transfer/frmGWT_SU.h"

#include <QApplication>

namespace {

template <typename Window>
QDialog* Make(QWidget* parent) {
    return new Window(parent);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    ProgramStyle::Install();
    const NativePath executableFolder(QCoreApplication::applicationDirPath().toStdU16String());
    const auto language = BuiltEdition == Edition::French ? CaptionLanguage::French : CaptionLanguage::English;
    ProgramDrives drives = OpenProgramDrives(RealSystemCalls(), executableFolder, language);
    // Never destroyed: a thread that hangs in a read of a stalled share may still need it when the program ends.
    static auto* const desktop = new QtDesktop(std::move(drives.TheVolumes), RealSystemCalls(), language);
    InstallDesktop(desktop);
    const frmCFG_IconOnly icon;
    QApplication::setWindowIcon(icon.windowIcon());
    for (const QString& complaint : drives.Complaints) {
        ShowNotice(MessageIcon::Exclamation, QStringLiteral("DRIVES.CONF"), complaint);
    }
    frmMaster_SU menu({.General = Make<frmSetUp_SU>,
                       .Import = Make<frmImport_SU>,
                       .Admin = Make<frmAdmin_SU>,
                       .Transfer = Make<frmGWT_SU>});
    if (!menu.Form_Load(BuiltEdition, drives.ProgramFolder)) {
        return 0;
    }
    menu.show();
    return QApplication::exec();
}
