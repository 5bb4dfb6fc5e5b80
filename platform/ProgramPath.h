#pragma once

#include <QString>

/// Paths in the form that the teachers' stations use: a drive letter, a colon and components separated by
/// backslashes (`c:\marks\2016`). Plain text work; nothing here looks at a disk.

/// `folder` and `name` joined by exactly one backslash (a trailing one of the folder is not doubled).
QString JoinPath(const QString& folder, const QString& name);

/// The path without one trailing backslash, when it ends in one.
QString WithoutTrailingBackslash(const QString& path);

/// The drive of a path in small letters with its colon ("c:"); empty when the path names none.
QString DriveOf(const QString& path);

/// The part before the last backslash, empty when there is none.
QString FolderOf(const QString& path);

/// The part after the last backslash; the whole text when there is none.
QString NameOf(const QString& path);
