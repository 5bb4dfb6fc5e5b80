#include "tests/e2e/InstalledProgram.h"

#include <QDate>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <stdexcept>

namespace {

const QString WineDrive = QStringLiteral("z:"); // where Wine shows the whole machine

QByteArray ReadFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("Cannot read " + path.toStdString());
    }
    return file.readAll();
}

QString ExecutableName(const QString& program) {
    return UnderWine() ? program + QStringLiteral(".exe") : program;
}

// The folder of the build that is installed.
QString BuildFolder() {
    return qEnvironmentVariable("WINDOWS_BUILD", QStringLiteral(E2E_BUILD));
}

} // namespace

bool UnderWine() {
    return qEnvironmentVariableIsSet("WINDOWS_BUILD");
}

QString NativeName(const QString& path) {
    return UnderWine() ? WineDrive + QString(path).replace(QLatin1Char('/'), QLatin1Char('\\')) : path;
}

EditionNames EnglishNames() {
    return {QStringLiteral("english"),
            ExecutableName(QStringLiteral("gradewell-config")),
            QStringLiteral("Gradewell 2016 Config"),
            QStringLiteral("Gradewell - GENERAL OPTIONS"),
            QStringLiteral("PRINTER FONT ERROR"),
            QStringLiteral("GWTCY_2016.exe"),
            QStringLiteral("alt+x"),
            QStringLiteral("alt+s"),
            QStringLiteral("alt+y")};
}

EditionNames FrenchNames() {
    return {QStringLiteral("french"),
            ExecutableName(QStringLiteral("carnelle-config")),
            QStringLiteral("Carnelle 2016 Config"),
            QStringLiteral("Carnelle - GENERAL OPTIONS"),
            QStringLiteral("Erreur de police d'imprimante"),
            QStringLiteral("CNT_2016.exe"),
            QStringLiteral("alt+q"),
            QStringLiteral("alt+e"),
            QStringLiteral("alt+o")};
}

QString EditionNames::Shown(const char* english) const {
    static const QHash<QByteArray, QString> french = {{"Yes", QStringLiteral("Oui")},
                                                      {"Retry", QStringLiteral("Réessayer")},
                                                      {"Cancel", QStringLiteral("Annuler")},
                                                      {"Save", QStringLiteral("Enregistrer")},
                                                      {"Select Font", QStringLiteral("Choisir une police")}};
    const QString same = QString::fromUtf8(english);
    return Component == QLatin1String("french") ? french.value(english, same) : same;
}

InstalledProgram::InstalledProgram(const EditionNames& edition, ProgramKind kind) : Edition(edition) {
    QProcess installer;
    installer.start(QStringLiteral(E2E_CMAKE), {QStringLiteral("--install"), BuildFolder(), QStringLiteral("--prefix"),
                                                Folder(), QStringLiteral("--component"), edition.Component});
    if (!installer.waitForFinished(-1) || installer.exitCode() != 0) {
        throw std::runtime_error("Cannot install: " + installer.readAllStandardError().toStdString());
    }
    if (UnderWine() && kind == ProgramKind::WithProbe) {
        const QString probed = BuildFolder() + QStringLiteral("/tests/e2e/probed/") + edition.Executable;
        Remove(edition.Executable);
        if (!QFile::copy(probed, Folder() + QLatin1Char('/') + edition.Executable)) {
            throw std::runtime_error("Cannot copy " + probed.toStdString());
        }
    }
}

QString InstalledProgram::Native(const QString& below) const {
    return NativeName(Folder() + QLatin1Char('/') + below);
}

QString InstalledProgram::Shown(const QString& below) const {
    const QString path = UnderWine() ? Native(below) : QStringLiteral("c:") + Native(below);
    return QString(path).replace(QLatin1Char('/'), QLatin1Char('\\')).toLower();
}

void InstalledProgram::Write(const QString& name, const QByteArray& bytes) {
    QFile file(Folder() + QLatin1Char('/') + name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw std::runtime_error("Cannot write " + name.toStdString());
    }
}

void InstalledProgram::MakeFolder(const QString& name) {
    QDir(Folder()).mkpath(name);
}

void InstalledProgram::Remove(const QString& name) {
    QFile::remove(Folder() + QLatin1Char('/') + name);
}

bool InstalledProgram::Exists(const QString& name) const {
    return QFile::exists(Folder() + QLatin1Char('/') + name);
}

QByteArray InstalledProgram::Read(const QString& name) const {
    return Exists(name) ? ReadFile(Folder() + QLatin1Char('/') + name) : QByteArray();
}

QStringList InstalledProgram::Files() const {
    QStringList files;
    QDirIterator walk(Folder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        files.append(QDir(Folder()).relativeFilePath(walk.next()));
    }
    files.sort();
    return files;
}

QByteArray Golden(const QString& name) {
    return ReadFile(QStringLiteral(E2E_GOLDENS "/") + name)
        .replace("@YEAR@", QByteArray::number(QDate::currentDate().year()));
}
