#include "app/DamagedFile.h"

#include "platform/Desktop.h"
#include "platform/Files.h"

namespace {

constexpr int MostCopies = 100; // names that earlier copies may have taken already

// Finds a name beside the file that nothing has yet: NAME.damaged-20160307-093000, a second later if that one is taken.
// Returns the error that kept it from being found.
SystemError FindCopyName(const QString& path, QString& name) {
    const QDateTime now = TheDesktop().Now();
    for (int later = 0; later < MostCopies; ++later) {
        const QString time = now.addSecs(later).toString(QStringLiteral("yyyyMMdd-HHmmss"));
        name = path + QStringLiteral(".damaged-") + time;
        SystemError look = ReadWholeFile(name).Error;
        if (look == MakeError(ErrorNumber::FileNotFound)) {
            return {};
        }
        if (look && look != MakeError(ErrorNumber::PathFileAccess)) { // a folder may have the name
            return look;
        }
    }
    return MakeError(ErrorNumber::PathFileAccess);
}

} // namespace

SystemError CopyDamagedFile(const QString& path) {
    const FileContents original = ReadWholeFile(path);
    if (original.Error == MakeError(ErrorNumber::FileNotFound)) {
        return {};
    }
    if (original.Error || original.Bytes.isEmpty()) {
        return original.Error;
    }
    QString name;
    const SystemError error = FindCopyName(path, name);
    return error ? error : SaveWholeFile(name, original.Bytes);
}

void ReportFailedSave(const QString& name, const SystemError& error) {
    ShowNotice(MessageIcon::Critical, name + QStringLiteral(" SAVE ERROR: ") + QString::number(error.Number),
               QStringLiteral("Unexpected Error while trying to save: ") + name);
}
