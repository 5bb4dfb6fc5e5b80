#include "platform/qt/HelperPrograms.h"

HelperCommand CommandFor(HelperProgram program, const QString& nativePath,
                         [[maybe_unused]] const HelperSurroundings& surroundings) {
#ifdef Q_OS_WIN
    const bool viewer = program == HelperProgram::FileViewer;
    return {viewer ? QStringLiteral("explorer.exe") : QStringLiteral("notepad.exe"), {nativePath}};
#else
    const QString opener = surroundings.FindProgram(QStringLiteral("xdg-open"));
    if (!opener.isEmpty() && surroundings.FileExists) {
        return {opener, {nativePath}};
    }
    const QString terminal = surroundings.FindProgram(QStringLiteral("x-terminal-emulator"));
    const QString editor = surroundings.FindProgram(surroundings.Editor);
    if (program == HelperProgram::TextEditor && !terminal.isEmpty() && !editor.isEmpty()) {
        return {terminal, {QStringLiteral("-e"), editor, nativePath}};
    }
    return {};
#endif
}
