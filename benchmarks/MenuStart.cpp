/// Starts like the program does, in the program folder that is given, and ends when the main menu is painted. Messages
/// are answered at once, because nobody is there to do it.

#include "app/BuiltEdition.h"
#include "app/frmCFG_IconOnly.h"
#include "app/frmMaster_SU.h"
#include "benchmarks/Measuring.h"
#include "platform/ProgramDrives.h"
#include "platform/qt/QtDesktop.h"
#include "platform/widgets/ProgramStyle.h"

#include <QApplication>

namespace {

class AnsweringDesktop : public QtDesktop {
public:
    using QtDesktop::QtDesktop;

protected:
    MessageAnswer AskUser(const Message&) override { return MessageAnswer::Ok; }
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    ProgramStyle::Install();
    ProgramDrives drives = OpenProgramDrives(RealSystemCalls(), NativePath(argv[1]));
    AnsweringDesktop desktop(std::move(drives.TheVolumes), RealSystemCalls());
    InstallDesktop(&desktop);
    const frmCFG_IconOnly icon;
    QApplication::setWindowIcon(icon.windowIcon());
    frmMaster_SU menu({});
    if (!menu.Form_Load(BuiltEdition, drives.ProgramFolder)) {
        return 1;
    }
    EndWhenPainted(menu);
    menu.show();
    return QApplication::exec();
}
