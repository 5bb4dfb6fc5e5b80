#pragma once

#include <QString>

/// The gradebook's own folders begin with "GW"; classes and backups must not be saved inside one.

/// Whether the last folder of the path begins with "GW", in any case. Folders higher up do not count; a path that ends
/// in a backslash (a drive's root) and one whose last backslash is its first character are never tested.
bool PointsIntoGradebookFolder(const QString& path);

/// The warning about such a folder; it only warns, the folder stays chosen.
QString GradebookFolderWarning();

/// The question (Retry or Cancel) about a folder that cannot be read. `opening` is the text before the path's bracket,
/// such as "The DEFAULT PATH [".
QString UnreadableFolderQuestion(const QString& opening, const QString& path);

/// The name that a dialog proposes in `folder` so that the user picks the folder only: the folder without a trailing
/// backslash, a backslash and "Don't_Delete_Me". No such file is ever made.
QString DummyFileIn(const QString& folder);

/// The folder of a name that such a dialog returned: what stands before its last backslash; the backslash of a drive's
/// root stays (`c:\`). Empty when there is none.
QString PickedFolder(const QString& fileName);
