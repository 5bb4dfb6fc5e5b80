#include "app/ConfigFile.h"

#include "app/ProductTexts.h"
#include "platform/Desktop.h"
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

bool IsMissing(const SystemError& error) {
    return error == MakeError(ErrorNumber::FileNotFound) || error == MakeError(ErrorNumber::PathNotFound);
}

// A name beside the file that no file has yet: NAME.damaged-20160307-093000, a second later if that one is taken.
QString FreeCopyName(const QString& path) {
    QDateTime time = TheDesktop().Now();
    QString name;
    do {
        name = path + QStringLiteral(".damaged-") + time.toString(QStringLiteral("yyyyMMdd-HHmmss"));
        time = time.addSecs(1);
    } while (FileExists(name));
    return name;
}

SystemError CopyDamaged(const QString& name) {
    if (!CopiesDue().contains(name)) {
        return {};
    }
    const QString path = JoinPath(ProgramFolder, name);
    const FileContents original = ReadWholeFile(path);
    SystemError error = IsMissing(original.Error) ? SystemError() : original.Error;
    if (!error && !original.Bytes.isEmpty()) {
        error = SaveWholeFile(FreeCopyName(path), original.Bytes);
    }
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
        ShowNotice(MessageIcon::Critical, name + QStringLiteral(" SAVE ERROR: ") + QString::number(error.Number),
                   QStringLiteral("Unexpected Error while trying to save: ") + name);
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
    const bool damaged = file.Error ? !IsMissing(file.Error) : bool(ReadConfigText(file.Bytes, ProgramConfig));
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
