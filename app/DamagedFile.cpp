#include "app/DamagedFile.h"

#include "platform/Desktop.h"
#include "platform/Files.h"

namespace {

constexpr int MostCopies = 100; // names that earlier copies may have taken already

// A name beside the file that no file has yet: NAME.damaged-20160307-093000, a second later if that one is taken.
// Empty when none is known to be free.
QString FreeCopyName(const QString& path) {
    const QDateTime now = TheDesktop().Now();
    for (int later = 0; later < MostCopies; ++later) {
        const QString time = now.addSecs(later).toString(QStringLiteral("yyyyMMdd-HHmmss"));
        QString name = path + QStringLiteral(".damaged-") + time;
        if (LookForFile(name) == FilePresence::Missing) {
            return name;
        }
    }
    return {};
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
    const QString name = FreeCopyName(path);
    return name.isEmpty() ? MakeError(ErrorNumber::PathFileAccess) : SaveWholeFile(name, original.Bytes);
}

void ReportFailedSave(const QString& name, const SystemError& error) {
    ShowNotice(MessageIcon::Critical, name + QStringLiteral(" SAVE ERROR: ") + QString::number(error.Number),
               QStringLiteral("Unexpected Error while trying to save: ") + name);
}
