#pragma once

#include "platform/Volumes.h"

#include <QMap>

/// Drive letters (small) and the folders that they stand for.
using DriveTable = QMap<QChar, NativePath>;

/// Drives of a system without drive letters: a table of letters and folders.
class MappedVolumes : public Volumes {
public:
    /// `calls` stays the caller's and is asked for every look at the disk.
    MappedVolumes(SystemCalls& calls, const DriveTable& drives);

    QStringList Drives() const override;
    NativeResult ToNative(const QString& path) const override;
    ProgramResult FromNative(const NativePath& path) const override;
    FolderResult ListFolders(const QString& path) const override;

private:
    SystemCalls& calls;
    DriveTable drives;
};
