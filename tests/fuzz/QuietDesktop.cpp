#include "tests/fuzz/QuietDesktop.h"

#include <cstdlib>

QuietDesktop::QuietDesktop() : before(InstallDesktop(this)) {}

QuietDesktop::~QuietDesktop() {
    InstallDesktop(before);
}

MessageAnswer QuietDesktop::AskUser(const Message& message) {
    Shown += message.Text.isEmpty() ? 0 : 1;
    return MessageAnswer::Ok;
}

// Nothing else may be asked for.

FileDialogAnswer QuietDesktop::AskForFile(const FileDialog& /*dialog*/) {
    std::abort();
}

FontDialogAnswer QuietDesktop::AskForFont(const QString& /*fontName*/, int /*pointSize*/) {
    std::abort();
}

SystemError QuietDesktop::StartProgram(HelperProgram /*program*/, const QString& /*path*/,
                                       std::function<void()> /*whenFailed*/) {
    std::abort();
}

QSize QuietDesktop::ScreenSize() {
    std::abort();
}

bool QuietDesktop::SetPrinterFont(const QString& /*fontName*/) {
    std::abort();
}

void QuietDesktop::ProcessPendingEvents() {
    std::abort();
}

void QuietDesktop::PaintPendingWindows() {
    std::abort();
}

QDateTime QuietDesktop::Now() {
    std::abort();
}

Volumes& QuietDesktop::TheVolumes() {
    std::abort();
}

SystemCalls& QuietDesktop::TheSystemCalls() {
    std::abort();
}
