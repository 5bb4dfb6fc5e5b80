#include "app/DamagedFile.h"

#include "platform/Desktop.h"
#include "platform/Files.h"

namespace {

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

} // namespace

SystemError CopyDamagedFile(const QString& path) {
    const FileContents original = ReadWholeFile(path);
    if (original.Error || original.Bytes.isEmpty()) {
        return IsMissingFile(original.Error) ? SystemError() : original.Error;
    }
    return SaveWholeFile(FreeCopyName(path), original.Bytes);
}

bool IsMissingFile(const SystemError& error) {
    return error == MakeError(ErrorNumber::FileNotFound) || error == MakeError(ErrorNumber::PathNotFound);
}

void ReportFailedSave(const QString& name, const SystemError& error) {
    ShowNotice(MessageIcon::Critical, name + QStringLiteral(" SAVE ERROR: ") + QString::number(error.Number),
               QStringLiteral("Unexpected Error while trying to save: ") + name);
}
