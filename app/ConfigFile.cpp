#include "app/ConfigFile.h"

#include "app/DamagedFile.h"
#include "app/ProductTexts.h"
#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/ProgramPath.h"

#include <QStringList>

namespace {

// The configuration files that are still to be copied before a save may replace them, because what is in them was not
// wholly read: the file was damaged, or it could not be reached when the program started. A whole newer file beside a
// damaged older one must not be lost either.
QStringList& CopiesDue() {
    static QStringList names;
    return names;
}

SystemError CopyDamaged(const QString& name) {
    if (!CopiesDue().contains(name)) {
        return {};
    }
    SystemError error = CopyDamagedFile(JoinPath(ProgramFolder, name));
    if (!error) {
        CopiesDue().removeAll(name);
    }
    return error;
}

SystemError SaveOneFile(const QString& name, const QByteArray& bytes) {
    SystemError error = CopyDamaged(name);
    return error ? error : SaveWholeFile(JoinPath(ProgramFolder, name), bytes);
}

SystemError SaveNewer(const QByteArray& bytes) {
    SystemError error = SaveOneFile(QString::fromUtf16(NewerConfigFile), bytes);
    if (!error) {
        DeleteWholeFile(JoinPath(ProgramFolder, QString::fromUtf16(PathFile))); // it is mostly not there
    }
    return error;
}

} // namespace

void LocateProgramConfig() {
    const QString older = QString::fromUtf16(OlderConfigFile);
    const bool noOlder = LookForFile(JoinPath(ProgramFolder, older)) == FilePresence::Missing;
    ConfigFileName = noOlder ? QString::fromUtf16(NewerConfigFile) : older;
    ReadProgramConfig();
}

void ReadProgramConfig() {
    CopiesDue().clear();
    const FileContents file = ReadWholeFile(JoinPath(ProgramFolder, ConfigFileName));
    bool wholeFile = false;
    if (file.Error) {
        ProgramConfig.ConfigLock = 1;
    } else {
        wholeFile = !ReadConfigText(file.Bytes, ProgramConfig) && !HasLaterSections(file.Bytes);
    }
    if (!wholeFile) {
        CopiesDue() = {QString::fromUtf16(OlderConfigFile), QString::fromUtf16(NewerConfigFile)};
    }
}

void SaveProgramConfig() {
    const QByteArray bytes = WriteConfigText(ProgramConfig, TitleLine);
    const QString older = QString::fromUtf16(OlderConfigFile);
    SystemError olderError;
    SystemError newerError;
    // Both in one go, so that a slow share shows one notice; apart only where a message comes between them.
    TheDesktop().RunSave([&] {
        olderError = SaveOneFile(older, bytes);
        newerError = olderError ? SystemError() : SaveNewer(bytes);
    });
    if (olderError) {
        ReportFailedSave(older, olderError);
        newerError = RunSave([&] { return SaveNewer(bytes); });
    }
    if (newerError) {
        ReportFailedSave(QString::fromUtf16(NewerConfigFile), newerError);
    }
}
