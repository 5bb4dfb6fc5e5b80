#include "platform/Volumes.h"

#include "platform/CodePage.h"
#include "platform/ProgramPath.h"

namespace {

constexpr qsizetype DriveLength = 2;

#ifdef _WIN32
constexpr char NoDriveText[] = "No drive of this machine and no share of the network reaches it.";
constexpr char NoDriveFrench[] = "Aucun lecteur de cet ordinateur et aucun partage du réseau n'y mène.";
#else
constexpr char NoDriveText[] = "No drive of the table in drives.conf reaches it.";
constexpr char NoDriveFrench[] = "Aucun lecteur de la table drives.conf n'y mène.";
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

QString RefusedFolderText(const QString& nativeName, const SystemError& error, CaptionLanguage language) {
    QString reason =
        InLanguage(language, "Error %1: %2.", "Erreur %1 : %2.").arg(QString::number(error.Number), error.Description);
    if (error.Number == static_cast<int>(ErrorNumber::DeviceUnavailable)) {
        reason = InLanguage(language, NoDriveText, NoDriveFrench);
    } else if (error.Number == static_cast<int>(ErrorNumber::BadFileName)) {
        reason = InLanguage(language, "Its name has characters that the gradebook's files cannot hold.",
                            "Son nom contient des caractères que les fichiers du carnet de notes n'admettent pas.");
    }
    return InLanguage(language, "The folder [%1] cannot be used.\n\n%2\n\nThe setting stays as it was.",
                      "Le dossier [%1] ne peut pas être utilisé.\n\n%2\n\nLe réglage reste tel qu'il était.")
        .arg(nativeName, reason);
}
