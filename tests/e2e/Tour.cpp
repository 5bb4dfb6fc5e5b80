/// Goes through a typical run of the program on a display and reports pictures, files and changes:
/// tour english|french PROGRAM-FOLDER PICTURE-FOLDER. Ends with 0 only if all of it came about.

#include "tests/e2e/Changes.h"
#include "tests/e2e/TourSteps.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <cstdio>
#include <stdexcept>

namespace {

const QStringList ConfigFiles = {QStringLiteral("GW_v11_PRG.CFG"), QStringLiteral("GW_v12_PRG.CFG")};

void Say(const QString& line) {
    std::printf("%s\n", qUtf8Printable(line));
}

QByteArray ReadIfThere(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<QByteArray> ReadConfigFiles(const QString& folder) {
    QList<QByteArray> contents;
    for (const QString& name : ConfigFiles) {
        contents.append(ReadIfThere(QDir(folder).filePath(name)));
    }
    return contents;
}

/// Prints what the run left; false when it left less than it must.
bool Report(const QStringList& pictures, const QString& folder, const QList<QByteArray>& before) {
    Say(QStringLiteral("Pictures:"));
    for (const QString& picture : pictures) {
        Say(QStringLiteral("  ") + picture);
    }
    const QList<QByteArray> after = ReadConfigFiles(folder);
    Say(QStringLiteral("Files written:"));
    bool changed = true;
    for (qsizetype file = 0; file < ConfigFiles.size(); ++file) {
        Say(QStringLiteral("  ") + QDir(folder).absoluteFilePath(ConfigFiles[file]));
        const QStringList changes = DescribeChanges(before[file], after[file]);
        for (const QString& change : changes) {
            Say(QStringLiteral("    ") + change);
        }
        changed = changed && !changes.isEmpty();
    }
    if (!changed || after[0] != after[1]) {
        Say(QStringLiteral("The run should have changed both files, and in the same way."));
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        std::fputs("Usage: tour english|french PROGRAM-FOLDER PICTURE-FOLDER\n", stderr);
        return 2;
    }
    const QString& folder = arguments[2];
    const QString pictures = QDir(arguments[3]).absolutePath();
    const EditionNames edition = arguments[1] == QLatin1String("french") ? FrenchNames() : EnglishNames();
    try {
        QDir().mkpath(pictures);
        const QList<QByteArray> before = ReadConfigFiles(folder);
        TourSteps steps(edition, folder, pictures);
        steps.Go();
        return Report(steps.Pictures(), folder, before) ? 0 : 1;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "The run did not come about: %s\n", failure.what());
        return 1;
    }
}
