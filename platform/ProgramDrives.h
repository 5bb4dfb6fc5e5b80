#pragma once

#include "platform/CaptionLanguage.h"
#include "platform/Volumes.h"

#include <QStringList>
#include <memory>

/// The drives that the program works with, and where it lies on them.
struct ProgramDrives {
    std::unique_ptr<Volumes> TheVolumes;
    QString ProgramFolder;  ///< in the program's form, without a trailing backslash
    QStringList Complaints; ///< one message for each thing that the user should put right
};

/// Reads the drive table `drives.conf` in the folder of the executable (a missing one is an empty one; one that cannot
/// be read is a complaint) and makes the drives of it. The complaints are in the language. `calls` stays the caller's
/// and must outlive the drives.
ProgramDrives OpenProgramDrives(SystemCalls& calls, const NativePath& executableFolder,
                                CaptionLanguage language = CaptionLanguage::English);
