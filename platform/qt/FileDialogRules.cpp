#include "platform/qt/FileDialogRules.h"

#include <QDir>
#include <QFileInfo>

QString ObjectionTo(const QString& nativeName, const FileDialog& dialog, CaptionLanguage language) {
    const QFileInfo chosen(nativeName);
    QString objection;
    if ((dialog.PathMustExist || dialog.FileMustExist) && !chosen.dir().exists()) {
        objection = InLanguage(language, "[%1]\n\nThe folder does not exist. Check the name and try again.",
                               "[%1]\n\nLe dossier n'existe pas. Vérifiez le nom et réessayez.");
    } else if (dialog.FileMustExist && !chosen.isFile()) {
        objection = InLanguage(language, "[%1]\n\nThe file does not exist. Check the name and try again.",
                               "[%1]\n\nLe fichier n'existe pas. Vérifiez le nom et réessayez.");
    }
    return objection.isEmpty() ? QString() : objection.arg(QDir::toNativeSeparators(nativeName));
}
