#include "tests/screens/Scene.h"

#include "app/CFG_2015.h"

#include <QDir>
#include <QFile>
#include <cstdio>
#include <cstdlib>

namespace {

const QString ProgramPath = QStringLiteral("c:\\srv\\gradebook");

QByteArray Sample(const QString& name) {
    QFile file(QDir(QStringLiteral(SCREENS_SAMPLES)).filePath(name));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s cannot be read\n", qPrintable(file.fileName()));
        std::exit(1);
    }
    return file.readAll();
}

} // namespace

Scene::Scene(Edition edition) {
    for (const QString& name : QDir(QStringLiteral(SCREENS_SAMPLES)).entryList(QDir::Files)) {
        Machine.Write(ProgramPath + u'\\' + name, Sample(name));
    }
    ProgramFolder = ProgramPath;
    SetProductTexts(edition);
    SetTitleLine(TheDesktop().Now().date().year());
    ProgramConfig = {};
    SetDefaultSettings();
    SetDatePatterns(ProgramConfig.TwoDigitYear);
    LocateProgramConfig();
    for (const QString& folder :
         {ProgramConfig.DefaultPath, ProgramConfig.PathToAdmin, ProgramConfig.PathToStudentPhotos,
          ProgramConfig.HTMLPath, ProgramConfig.BackupDestinationPath}) {
        Machine.MakeFolder(folder);
    }
}

void Scene::AddTransferProgram() {
    Machine.Write(ProgramFolder + u'\\' + TransferExeName, "A program");
}
