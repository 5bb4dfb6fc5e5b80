#include "platform/qt/HelperPrograms.h"

#ifndef Q_OS_WIN
#include <QProcess>

namespace {

// EDITOR's words, its program found; empty when it is not there. As everywhere, EDITOR may hold arguments, double
// quotes keep blanks together, and a program's own path may have blanks in it. No shell reads it.
QStringList EditorCommand(const HelperSurroundings& surroundings) {
    const QString whole = surroundings.FindProgram(surroundings.Editor);
    if (!whole.isEmpty()) {
        return {whole};
    }
    QStringList words = QProcess::splitCommand(surroundings.Editor);
    if (!words.isEmpty()) {
        words[0] = surroundings.FindProgram(words[0]);
    }
    return words.isEmpty() || words[0].isEmpty() ? QStringList() : words;
}

} // namespace
#endif

HelperCommand CommandFor(HelperProgram program, const QString& nativePath,
                         [[maybe_unused]] const HelperSurroundings& surroundings) {
#ifdef Q_OS_WIN
    const bool viewer = program == HelperProgram::FileViewer;
    return {viewer ? QStringLiteral("explorer.exe") : QStringLiteral("notepad.exe"),
            {},
            QLatin1Char('"') + nativePath + QLatin1Char('"')};
#else
    const QString opener = surroundings.FindProgram(QStringLiteral("xdg-open"));
    if (!opener.isEmpty() && surroundings.FileExists) {
        return {opener, {nativePath}, {}};
    }
    const QString terminal = surroundings.FindProgram(QStringLiteral("x-terminal-emulator"));
    const QStringList editor = EditorCommand(surroundings);
    if (program == HelperProgram::TextEditor && !terminal.isEmpty() && !editor.isEmpty()) {
        return {terminal, QStringList{QStringLiteral("-e")} + editor + QStringList{nativePath}, {}};
    }
    return {};
#endif
}
