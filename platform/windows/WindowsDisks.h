#pragma once

#include "platform/SystemCalls.h"

#include <QString>
#include <QStringList>

/// What Windows knows of its drives, so that a test can have other ones than its machine.
class WindowsDisks {
public:
    virtual ~WindowsDisks() = default;

    /// The letters of the drives there are, small and in order: "cz".
    virtual QString Letters() const = 0;

    /// The folder that the drive ("c:") alone stands for, as the system keeps it for this process.
    virtual QString CurrentFolder(const QString& drive) const = 0;

    /// The names of the folders in a folder that are not hidden, in the disk's order; 0 or minus the errno value.
    virtual int VisibleFolders(const NativePath& folder, QStringList& names) const = 0;

    /// A name for the folder of plain characters only, when the disk keeps such names; else the folder itself.
    virtual NativePath ShortName(const NativePath& folder) const = 0;
};

/// The drives of this machine.
const WindowsDisks& RealDisks();
