#pragma once

#include "tests/e2e/InstalledProgram.h"
#include "tests/e2e/RunningProgram.h"

#include <memory>
#include <string>

/// The names of the edition "english" or "french".
EditionNames NamesOf(const std::string& edition);

/// The hand-written file of the installed edition in that state ("locked").
QByteArray EditionGolden(const InstalledProgram& installed, const char* state);

/// Starts the program and gets past the message about the missing printer.
std::unique_ptr<RunningProgram> StartToMenu(const InstalledProgram& installed, const QStringList& environment = {});

/// Waits for both configuration files to hold the bytes; on failure shows what they hold instead.
void AwaitBothFiles(RunningProgram& program, const InstalledProgram& installed, const QByteArray& expected);

/// Leaves by the access key of Exit and expects a good end.
void ExitByKeys(RunningProgram& program, const InstalledProgram& installed);

/// The bytes with folders that every machine has, or General Options would begin with a message about them.
QByteArray WithFolders(QByteArray bytes);
