#include "options/FolderRule.h"

#include "platform/CodePage.h"
#include "platform/ProgramPath.h"

bool PointsIntoGradebookFolder(const QString& path) {
    const qsizetype backslash = path.lastIndexOf(u'\\');
    if (backslash < 1 || backslash == path.size() - 1) {
        return false;
    }
    return UpperCase(path.mid(backslash + 1, 2)) == QStringLiteral("GW");
}

QString GradebookFolderWarning() {
    return QStringLiteral("The current path points to a folder that begins with 'GW' which will cause problems for "
                          "Gradewell users.\n\n"
                          "Please select another path which does not 'point' inside a folder that begins with 'GW'.");
}

QString UnreadableFolderQuestion(const QString& opening, const QString& path) {
    return opening + path +
           QStringLiteral("] to your FILES is invalid.\n\n"
                          "If these files are on a floppy disk, please insert the disk and try again.\n\n"
                          "If this path is to your hard drive, click on 'Cancel'; then, Reset or Clear the path.");
}

QString DummyFileIn(const QString& folder) {
    return JoinPath(folder, QStringLiteral("Don't_Delete_Me"));
}

QString PickedFolder(const QString& fileName) {
    const QString folder = FolderOf(fileName);
    return folder.size() == 2 && folder.endsWith(u':') ? folder + u'\\' : folder;
}
