#pragma once

#include "platform/SystemError.h"

#include <QByteArray>
#include <QString>

/// Files by their path in the program's form (`c:\marks\x.cfg`). Names are looked up exactly first and then, component
/// by component, without regard to case.

struct FileContents {
    QByteArray Bytes;
    SystemError Error;
};

/// The whole file. Errors: 53 no such file, 76 no such folder, 75 a folder of that name, 68 no such drive, and what
/// the system reports. Bytes read before a failure are not returned.
FileContents ReadWholeFile(const QString& path);

/// Saves the whole file by SafeSave.
SystemError SaveWholeFile(const QString& path, const QByteArray& bytes);

/// Deletes the file.
SystemError DeleteWholeFile(const QString& path);

/// What a look at the disk says of a file.
enum class FilePresence {
    Present,
    Missing, ///< its folder could be read and holds no file of that name (a folder of that name is no file)
    Unknown, ///< the look failed: no such drive or folder, a device error, access refused
};

FilePresence LookForFile(const QString& path);

/// Whether a file, not a folder, of that name is known to exist.
bool FileExists(const QString& path);

/// Whether the file can be opened for reading.
bool FileOpens(const QString& path);
