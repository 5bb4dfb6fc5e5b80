#pragma once

#include "platform/Desktop.h"

#include <QStringList>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// The desktop of the tests: records what was asked and gives the next answer. A message or dialog that no answer was
/// queued for fails the test, and so does an answer that nobody asked for. It installs itself and its predecessor
/// again.
class ScriptedDesktop : public Desktop {
public:
    /// `volumes` and `calls` stay the caller's.
    ScriptedDesktop(Volumes& volumes, SystemCalls& calls);
    ~ScriptedDesktop() override;
    ScriptedDesktop(const ScriptedDesktop&) = delete;
    ScriptedDesktop& operator=(const ScriptedDesktop&) = delete;

    /// Queues the answer of the next message box.
    void Answer(MessageAnswer answer, std::function<void()> whileShown = {});
    /// Queues the name that the next file dialog returns; an empty one is Cancel.
    void AnswerFile(const QString& fileName);
    /// Queues the font that the next font dialog returns; an empty one is Cancel.
    void AnswerFont(const QString& fontName);

    /// Answers every message box for which no answer is queued.
    std::optional<MessageAnswer> AnswerToOthers;

    // What was asked, in order.
    std::vector<Message> Messages;
    std::vector<FileDialog> FileDialogs;
    struct AskedFont {
        QString FontName;
        int PointSize;
    };
    std::vector<AskedFont> FontDialogs;
    struct StartedProgram {
        HelperProgram Program;
        QString Path;
        std::function<void()> WhenFailed;
    };
    std::vector<StartedProgram> Started;
    QStringList PrinterFonts;
    int PendingEventRounds = 0;
    int PaintRounds = 0;

    // What the machine is like.
    QSize Screen{1280, 800};
    QSize WindowFrame{0, 0};
    bool HasPrinter = true;
    SystemError StartFailure;
    QDateTime Clock{QDate(2016, 3, 7), QTime(9, 30)};

    FileDialogAnswer AskForFile(const FileDialog& dialog) override;
    FontDialogAnswer AskForFont(const QString& fontName, int pointSize) override;
    SystemError StartProgram(HelperProgram program, const QString& path, std::function<void()> whenFailed) override;
    QSize ScreenSize() override { return Screen; }
    QSize RoomForWindow() override { return Screen - WindowFrame; }
    bool SetPrinterFont(const QString& fontName) override;
    void ProcessPendingEvents() override;
    void PaintPendingWindows() override;
    QDateTime Now() override { return Clock; }
    Volumes& TheVolumes() override { return volumes; }
    SystemCalls& TheSystemCalls() override { return calls; }

protected:
    MessageAnswer AskUser(const Message& message) override;

private:
    struct QueuedAnswer {
        MessageAnswer answer;
        std::function<void()> whileShown;
    };

    Volumes& volumes;
    SystemCalls& calls;
    Desktop* before;
    std::deque<QueuedAnswer> answers;
    std::deque<QString> fileAnswers;
    std::deque<QString> fontAnswers;
};
