#include "tests/support/ScriptedDesktop.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace {

template <typename Queued>
Queued TakeNext(std::deque<Queued>& queue, const char* what, const QString& title, Queued otherwise) {
    if (queue.empty()) {
        ADD_FAILURE() << "unexpected " << what << ": " << title.toStdString();
        return otherwise;
    }
    Queued next = queue.front();
    queue.pop_front();
    return next;
}

SystemError CancelledIfEmpty(const QString& answer) {
    return answer.isEmpty() ? MakeError(ErrorNumber::DialogCancelled) : SystemError();
}

} // namespace

ScriptedDesktop::ScriptedDesktop(Volumes& volumesToUse, SystemCalls& callsToUse)
    : volumes(volumesToUse), calls(callsToUse), before(InstallDesktop(this)) {}

ScriptedDesktop::~ScriptedDesktop() {
    EXPECT_TRUE(answers.empty()) << answers.size() << " queued answers were not asked for";
    EXPECT_TRUE(fileAnswers.empty()) << fileAnswers.size() << " queued files were not asked for";
    EXPECT_TRUE(fontAnswers.empty()) << fontAnswers.size() << " queued fonts were not asked for";
    InstallDesktop(before);
}

void ScriptedDesktop::Answer(MessageAnswer answer, std::function<void()> whileShown) {
    answers.push_back({answer, std::move(whileShown)});
}

void ScriptedDesktop::AnswerFile(const QString& fileName) {
    fileAnswers.push_back(fileName);
}

void ScriptedDesktop::AnswerFont(const QString& fontName) {
    fontAnswers.push_back(fontName);
}

MessageAnswer ScriptedDesktop::AskUser(const Message& message) {
    Messages.push_back(message);
    if (answers.empty() && AnswerToOthers) {
        return *AnswerToOthers;
    }
    const QueuedAnswer next = TakeNext(answers, "message", message.Title + QStringLiteral(": ") + message.Text,
                                       QueuedAnswer{MessageAnswer::Cancel, {}});
    if (next.whileShown) {
        next.whileShown();
    }
    return next.answer;
}

FileDialogAnswer ScriptedDesktop::AskForFile(const FileDialog& dialog) {
    FileDialogs.push_back(dialog);
    const QString name = TakeNext(fileAnswers, "file dialog", dialog.Title, QString());
    return {name, CancelledIfEmpty(name)};
}

FontDialogAnswer ScriptedDesktop::AskForFont(const QString& fontName, int pointSize) {
    FontDialogs.push_back({fontName, pointSize});
    const QString name = TakeNext(fontAnswers, "font dialog", fontName, QString());
    return {name, CancelledIfEmpty(name)};
}

SystemError ScriptedDesktop::StartProgram(HelperProgram program, const QString& path,
                                          std::function<void()> whenFailed) {
    Started.push_back({program, path, std::move(whenFailed)});
    return StartFailure;
}

bool ScriptedDesktop::SetPrinterFont(const QString& fontName) {
    PrinterFonts.append(fontName);
    return HasPrinter;
}

void ScriptedDesktop::ProcessPendingEvents() {
    ++PendingEventRounds;
    QCoreApplication::processEvents();
}

void ScriptedDesktop::PaintPendingWindows() {
    ++PaintRounds;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
