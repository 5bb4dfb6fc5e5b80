#pragma once

#include "platform/Desktop.h"

/// A desktop for routines that show nothing but message boxes: counts them and answers OK. Installed while it lives.
class QuietDesktop : public Desktop {
public:
    QuietDesktop();
    ~QuietDesktop() override;
    QuietDesktop(const QuietDesktop&) = delete;
    QuietDesktop& operator=(const QuietDesktop&) = delete;

    int Shown = 0;

    FileDialogAnswer AskForFile(const FileDialog& dialog) override;
    FontDialogAnswer AskForFont(const QString& fontName, int pointSize) override;
    SystemError StartProgram(HelperProgram program, const QString& path, std::function<void()> whenFailed) override;
    QSize ScreenSize() override;
    bool SetPrinterFont(const QString& fontName) override;
    void ProcessPendingEvents() override;
    void PaintPendingWindows() override;
    QDateTime Now() override;
    Volumes& TheVolumes() override;
    SystemCalls& TheSystemCalls() override;

protected:
    MessageAnswer AskUser(const Message& message) override;

private:
    Desktop* before;
};
