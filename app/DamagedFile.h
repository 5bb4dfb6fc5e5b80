#pragma once

#include "platform/SystemError.h"

#include <QString>

/// What every save of a configuration file shares beside the writing itself.

/// Keeps a copy of a file that could not be read to its end, as NAME.damaged-YYYYMMDD-HHMMSS beside it. A missing or
/// empty file needs none. Returns the error that kept the copy from being made; the file must then not be replaced.
SystemError CopyDamagedFile(const QString& path);

/// The message box of a failed save, with the file's bare name and the error's number.
void ReportFailedSave(const QString& name, const SystemError& error);
