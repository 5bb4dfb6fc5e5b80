#pragma once

#include "platform/Desktop.h"

#include <QStringList>
#include <functional>

/// Which command opens a file, decided without starting anything.

struct HelperCommand {
    QString Program; ///< empty when this machine has nothing that could do it
    QStringList Arguments;
    QString Line; ///< on Windows instead of the arguments: what stands behind the program's name
};

/// What the decision looks at: programs on the machine and its environment.
struct HelperSurroundings {
    std::function<QString(const QString& name)> FindProgram; ///< the program's whole path, empty when it is missing
    QString Editor;                                          ///< the EDITOR variable: a program, maybe with arguments
    bool FileExists = true;
};

/// The command for a file by its native path, which is always one argument of its own. On Windows that is in double
/// quotes, which no name there can hold: the file explorer takes a bare comma or equals sign for the argument's end.
/// Where the system has no program of its own for it (not Windows): the desktop's opener; for text also $EDITOR in a
/// terminal, the only way to a file that does not exist yet.
HelperCommand CommandFor(HelperProgram program, const QString& nativePath, const HelperSurroundings& surroundings);
