#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// The two configuration files, of the gradebook before and of this one.
inline const QString Older = QStringLiteral("GW_v11_PRG.CFG");
inline const QString Newer = QStringLiteral("GW_v12_PRG.CFG");

/// The names and titles of one edition.
struct EditionNames {
    QString Component; ///< what cmake --install calls it
    QString Executable;
    QString MenuTitle;
    QString OptionsTitle;    ///< of the General Options window
    QString PrinterTitle;    ///< of the message that a machine without a printer shows at the start
    QString TransferProgram; ///< the file whose presence shows the Transfer area
    QString ExitKeys;        ///< access keys of Exit in the menu and of Save in an options window
    QString SaveKeys;
    QString YesKeys; ///< of a question

    /// What this edition shows for a button or title of a message or of the system's dialogs.
    QString Shown(const char* english) const;
};

/// Whether the tests work the Windows programs: WINDOWS_BUILD names the build that made them, WINEPREFIX the folder
/// with their drives. Nothing can be loaded into these programs, so the installed one is a twin with the probe linked
/// in, unless a test takes the program itself.
bool UnderWine();
enum class ProgramKind { WithProbe, AsHandedOut };

EditionNames EnglishNames();
EditionNames FrenchNames();

/// A program folder in a temporary folder, made by the project's own install rules.
class InstalledProgram {
public:
    explicit InstalledProgram(const EditionNames& edition, ProgramKind kind = ProgramKind::WithProbe);

    const EditionNames Edition;

    QString Folder() const { return directory.path(); }
    /// A file or folder below it as the program names it, and as the program's system does.
    QString Shown(const QString& below) const;
    QString Native(const QString& below) const;
    /// Files of the folder by their name below it.
    void Write(const QString& name, const QByteArray& bytes);
    void MakeFolder(const QString& name);
    void Remove(const QString& name);
    bool Exists(const QString& name) const;
    QByteArray Read(const QString& name) const;
    /// All files, as paths below the folder, sorted.
    QStringList Files() const;

private:
    QTemporaryDir directory;
};

/// A whole path of this machine as the program's system names it.
QString NativeName(const QString& path);

/// A file of tests/data/e2e; "@YEAR@" in it stands for the current year.
QByteArray Golden(const QString& name);
