#pragma once

#include "platform/CaptionLanguage.h"
#include "platform/SystemCalls.h"
#include "platform/SystemError.h"

#include <QHash>
#include <QString>
#include <QStringList>

/// Drives and folders as the program sees them (`c:\marks\2016`) and where they lie on this machine. On Windows they
/// are the system's own; elsewhere drive letters stand for folders (drives.conf). Only platform/ sees native paths.
class Volumes {
public:
    struct NativeResult {
        NativePath Path;
        SystemError Error;
    };
    struct ProgramResult {
        QString Path;      ///< in the program's form, drive in small letters; empty on failure
        SystemError Error; ///< 68 when no drive reaches it, 52 when its name cannot be written in the code page
    };
    struct FolderResult {
        QStringList Names; ///< the folders in it, sorted without regard to case
        SystemError Error; ///< 71 when the drive cannot be read, 76 when the folder is gone, 70 when it is refused
    };

    virtual ~Volumes() = default;

    /// The drives, in the order of their letters, each as "c:".
    virtual QStringList Drives() const = 0;

    /// Where the path lies. Each component is looked up exactly first and then without regard to case; a last component
    /// that does not exist is taken as it stands. 68 for an unknown drive, 76 when a folder on the way is missing.
    virtual NativeResult ToNative(const QString& path) const = 0;

    /// The path in the program's form of a native one: the drive with the longest folder that contains it.
    virtual ProgramResult FromNative(const NativePath& path) const = 0;

    /// The folders in a folder.
    virtual FolderResult ListFolders(const QString& path) const = 0;

    /// A path made whole: a drive alone ("c:") stands for the drive's current folder, a root keeps its backslash
    /// (`c:\`), any other folder loses a trailing one, and a forward slash separates like a backslash. Blanks at both
    /// ends are dropped; a blank path is empty.
    QString WholePath(const QString& path) const;

    /// The folder last chosen on the path's drive becomes what the drive alone stands for.
    void SetCurrentFolder(const QString& path);

protected:
    /// What a drive alone stands for as long as no folder was chosen on it: its root, unless the system knows better.
    virtual QString FirstFolder(const QString& drive) const;

private:
    QHash<QString, QString> currentFolders; // by drive ("c:")
};

/// What to tell a user whose folder was refused by FromNative: why, and that the setting stays as it was.
QString RefusedFolderText(const QString& nativeName, const SystemError& error,
                          CaptionLanguage language = CaptionLanguage::English);
