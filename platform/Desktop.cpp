#include "platform/Desktop.h"

#include <QtGlobal>
#include <utility>

std::int16_t MsgAnswer = 0;

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

MessageAnswer Desktop::ShowMessage(const Message& message) {
    const MessageAnswer answer = AskUser(message);
    MsgAnswer = static_cast<std::int16_t>(answer);
    return answer;
}

void Desktop::RunSave(const std::function<void()>& save) {
    save();
}

SystemError RunSave(const std::function<SystemError()>& save) {
    SystemError error;
    TheDesktop().RunSave([&] { error = save(); });
    return error;
}

void ShowNotice(MessageIcon icon, const QString& title, const QString& text) {
    TheDesktop().ShowMessage({title, text, MessageButtons::Ok, icon});
}
