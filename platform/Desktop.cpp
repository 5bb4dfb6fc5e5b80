#include "platform/Desktop.h"

#include <QtGlobal>
#include <utility>

namespace {

Desktop* installedDesktop = nullptr;

} // namespace

Desktop& TheDesktop() {
    Q_ASSERT_X(installedDesktop != nullptr, "TheDesktop", "no desktop is installed");
    return *installedDesktop;
}

Desktop* InstallDesktop(Desktop* desktop) {
    return std::exchange(installedDesktop, desktop);
}

void ShowNotice(MessageIcon icon, const QString& title, const QString& text) {
    TheDesktop().ShowMessage({title, text, MessageButtons::Ok, icon});
}
