#pragma once

#include "platform/CaptionLanguage.h"
#include "platform/Desktop.h"

#include <QTranslator>
#include <memory>

/// The desktop of the running program: Qt's message boxes and dialogs, the screen, the printers and the drives.
class QtDesktop : public Desktop {
public:
    /// `volumes` are the drives that the program was started with; `calls` stays the caller's. `language` is that of
    /// the buttons and of the messages that no window words itself; an application must be there already.
    QtDesktop(std::unique_ptr<Volumes> volumes, SystemCalls& calls,
              CaptionLanguage language = CaptionLanguage::English);
    ~QtDesktop() override;

    FileDialogAnswer AskForFile(const FileDialog& dialog) override;
    FontDialogAnswer AskForFont(const QString& fontName, int pointSize) override;
    SystemError StartProgram(HelperProgram program, const QString& path, std::function<void()> whenFailed) override;
    QSize ScreenSize() override;
    QSize RoomForWindow() override;
    bool SetPrinterFont(const QString& fontName) override;
    void ProcessPendingEvents() override;
    void PaintPendingWindows() override;
    void RunSave(const std::function<void()>& save) override;
    QDateTime Now() override;
    Volumes& TheVolumes() override;
    SystemCalls& TheSystemCalls() override;

protected:
    MessageAnswer AskUser(const Message& message) override;

private:
    std::unique_ptr<Volumes> volumes;
    SystemCalls& calls;
    CaptionLanguage language;
    std::unique_ptr<QTranslator> frenchTexts; // of the French edition
};
