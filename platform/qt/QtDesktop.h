#pragma once

#include "platform/Desktop.h"

#include <memory>

/// The desktop of the running program: Qt's message boxes and dialogs, the screen, the printers and the drives.
class QtDesktop : public Desktop {
public:
    /// `volumes` are the drives that the program was started with; `calls` stays the caller's.
    QtDesktop(std::unique_ptr<Volumes> volumes, SystemCalls& calls);
    ~QtDesktop() override;

    MessageAnswer ShowMessage(const Message& message) override;
    FileDialogAnswer AskForFile(const FileDialog& dialog) override;
    FontDialogAnswer AskForFont(const QString& fontName, int pointSize) override;
    SystemError StartProgram(HelperProgram program, const QString& path) override;
    QSize ScreenSize() override;
    bool SetPrinterFont(const QString& fontName) override;
    void ProcessPendingEvents() override;
    QDateTime Now() override;
    Volumes& TheVolumes() override;
    SystemCalls& TheSystemCalls() override;

private:
    std::unique_ptr<Volumes> volumes;
    SystemCalls& calls;
};
