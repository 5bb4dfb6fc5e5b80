#pragma once

#include "platform/MappedVolumes.h"
#include "tests/support/PrintText.h"
#include "tests/support/ScriptedDesktop.h"

#include <QTemporaryDir>

/// A machine for one test: drive c: is a new empty folder on the disk, the scripted desktop is installed, and files are
/// put there and looked at by their path in the program's form (`c:\gradewell\GW_v12_PRG.CFG`).
class TestFolder {
public:
    explicit TestFolder(SystemCalls& calls = RealSystemCalls());
    /// Waits for reads that were left to themselves: they use the calls, which may go next.
    ~TestFolder();

    /// Where the path lies on the disk of this machine.
    NativePath Native(const QString& path) const;

    void MakeFolder(const QString& path);
    /// Makes the folders on the way, too.
    void Write(const QString& path, const QByteArray& bytes);
    QByteArray Read(const QString& path) const;
    bool Exists(const QString& path) const;
    void Remove(const QString& path);
    /// The names in a folder, sorted.
    QStringList Names(const QString& path) const;

private:
    QTemporaryDir directory;

public:
    MappedVolumes Drives;
    ScriptedDesktop Screen;
};

/// The bytes of a file that was written by hand, by its path below tests/data.
QByteArray HandWritten(const char* name);
