#pragma once

#include "platform/Volumes.h"
#include "platform/windows/WindowsDisks.h"

/// The system's own drives and paths, and shares of the network by their own names (`\\server\share\marks`). Names
/// compare without case, as the disks of Windows do it. What Windows would silently take for something else is a bad
/// name (52): a name with a colon (a stream), names of devices such as NUL, dots or blanks at a name's end.
class WindowsVolumes : public Volumes {
public:
    /// `calls` and `disks` stay the caller's.
    WindowsVolumes(SystemCalls& calls, const WindowsDisks& disks);

    QStringList Drives() const override;
    /// 71 when the drive has no disk or is not reached, 68 also for a share or a server that is not there.
    NativeResult ToNative(const QString& path) const override;
    /// 68 for what is neither on a drive nor on a share.
    ProgramResult FromNative(const NativePath& path) const override;
    FolderResult ListFolders(const QString& path) const override;

protected:
    QString FirstFolder(const QString& drive) const override;

private:
    SystemCalls& calls;
    const WindowsDisks& disks;
};
