#include "app/ConfigFile.h"

#include "app/DamagedFile.h"
#include "app/ProductTexts.h"
#include "platform/Files.h"
#include "platform/ProgramPath.h"

#include <QStringList>

namespace {

// The configuration files that are still to be copied before a save may replace them, because the file that was read
// is damaged: a whole newer file beside a damaged older one must not be lost either.
QStringList& CopiesDue() {
    static QStringList names;
    return names;
}

SystemError CopyDamaged(const QString& name) {
    if (!CopiesDue().contains(name)) {
        return {};
    }
    const SystemError error = CopyDamagedFile(JoinPath(ProgramFolder, name));
    if (!error) {
        CopiesDue().removeAll(name);
    }
    return error;
}

bool SaveOneFile(const QString& name, const QByteArray& bytes) {
    SystemError error = CopyDamaged(name);
    if (!error) {
        error = SaveWholeFile(JoinPath(ProgramFolder, name), bytes);
    }
    if (error) {
        ReportFailedSave(name, error);
    }
    return !error;
}

} // namespace

void LocateProgramConfig() {
    const QString older = QString::fromUtf16(OlderConfigFile);
    ConfigFileName = FileExists(JoinPath(ProgramFolder, older)) ? older : QString::fromUtf16(NewerConfigFile);
    ReadProgramConfig();
}

void ReadProgramConfig() {
    CopiesDue().clear();
    const FileContents file = ReadWholeFile(JoinPath(ProgramFolder, ConfigFileName));
    const bool damaged = file.Error ? !IsMissingFile(file.Error) : bool(ReadConfigText(file.Bytes, ProgramConfig));
    if (file.Error) {
        ProgramConfig.ConfigLock = 1;
    }
    if (damaged) {
        CopiesDue() = {QString::fromUtf16(OlderConfigFile), QString::fromUtf16(NewerConfigFile)};
    }
}

void SaveProgramConfig() {
    const QByteArray bytes = WriteConfigText(ProgramConfig, TitleLine);
    SaveOneFile(QString::fromUtf16(OlderConfigFile), bytes);
    if (SaveOneFile(QString::fromUtf16(NewerConfigFile), bytes)) {
        DeleteWholeFile(JoinPath(ProgramFolder, QString::fromUtf16(PathFile))); // it is mostly not there
    }
}
