#pragma once

#include <QString>
#include <QStringList>

/// A whole path of Windows taken apart, by text alone.
struct WindowsPath {
    QString Root;           ///< `c:\` (small letter) or `\\server\share`; empty when the text begins with neither
    QStringList Components; ///< below the root, "." and ".." resolved (the root's ".." is the root)

    bool OnShare() const { return Root.startsWith(QStringLiteral("\\\\")); }
    /// The path put together again, without a trailing backslash unless it is a drive's root.
    QString Text() const;
    /// The folder that the path lies in; the root for the root.
    QString FolderText() const;
};

/// Takes a path apart. A drive without a backslash behind it ("c:marks") has no root here.
WindowsPath SplitWindowsPath(const QString& path);

/// Whether Windows makes a file or folder of exactly this name: no character that it refuses or reads as something
/// else, no name of a device (with or without an extension), no dot or blank at the end, 255 characters at most.
bool IsPlainName(const QString& name);
