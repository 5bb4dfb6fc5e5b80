#include "platform/Volumes.h"

#include "platform/CodePage.h"
#include "platform/ProgramPath.h"

namespace {

constexpr qsizetype DriveLength = 2;

#ifdef _WIN32
constexpr char16_t NoDriveText[] = u"No drive of this machine and no share of the network reaches it.";
#else
constexpr char16_t NoDriveText[] = u"No drive of the table in drives.conf reaches it.";
#endif

} // namespace

QString Volumes::WholePath(const QString& path) const {
    const QString trimmed = TrimBlanks(path).replace(u'/', u'\\');
    const QString drive = DriveOf(trimmed);
    if (drive.isEmpty()) {
        return trimmed.size() > 1 ? WithoutTrailingBackslash(trimmed) : trimmed;
    }
    const QString below = trimmed.mid(DriveLength);
    if (below.startsWith(u'\\')) {
        const QString whole = drive + WithoutTrailingBackslash(below);
        return whole.size() == DriveLength ? whole + QChar(u'\\') : whole;
    }
    const QString current = currentFolders.contains(drive) ? currentFolders.value(drive) : FirstFolder(drive);
    return below.isEmpty() ? current : JoinPath(current, WithoutTrailingBackslash(below));
}

void Volumes::SetCurrentFolder(const QString& path) {
    const QString whole = WholePath(path);
    const QString drive = DriveOf(whole);
    if (!drive.isEmpty()) {
        currentFolders.insert(drive, whole);
    }
}

QString Volumes::FirstFolder(const QString& drive) const {
    return drive + QChar(u'\\');
}

QString RefusedFolderText(const QString& nativeName, const SystemError& error) {
    QString reason = QStringLiteral("Error %1: %2.").arg(error.Number).arg(error.Description);
    if (error.Number == static_cast<int>(ErrorNumber::DeviceUnavailable)) {
        reason = QString::fromUtf16(NoDriveText);
    } else if (error.Number == static_cast<int>(ErrorNumber::BadFileName)) {
        reason = QStringLiteral("Its name has characters that the gradebook's files cannot hold.");
    }
    return QStringLiteral("The folder [%1] cannot be used.\n\n%2\n\nThe setting stays as it was.")
        .arg(nativeName, reason);
}
