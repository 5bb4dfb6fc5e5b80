#include "options/PathTexts.h"

#include "platform/CodePage.h"

namespace {

constexpr qsizetype ExtensionLength = 4;

} // namespace

QString DataFolderNotice(const QString& productName) {
    return QStringLiteral("Use the 'Save in' drop down in the following dialog box to set the path to ") + productName +
           QStringLiteral(" data folders.\n\n"
                          "Please: \n"
                          "   -> Do NOT click inside a folder that begins with 'GW'.\n"
                          "   -> Do NOT delete the 'Don't_Delete_Me' file name.\n\n"
                          "Click on Save when you're in the right 'place'.\n");
}

QString HtmlFolderNotice() {
    return QStringLiteral("Use the 'Save in' drop down in the following dialog box to set the path to the folder where "
                          "HTML Reports are to be saved.\n\n"
                          "Please do NOT delete the 'Don't_Delete_Me' file name.\n\n"
                          "Click on Save when you're in the right 'place'.");
}

Message PhotoNotice() {
    return {
        QStringLiteral("PATH TO STUDENT PHOTOGRAPHS"),
        QStringLiteral("Please use the 'Look in' list in the next dialog box to find the path to the photographs of "
                       "your students. You're looking for files named using Student Numbers with 'BMP' or 'JPG' at "
                       "the end. \n\n"
                       "To complete the process, click on any one of these files to place its name in the 'File "
                       "Name' box and then click on 'Open'."),
        MessageButtons::Ok, MessageIcon::Information};
}

FileDialog PhotoDialog(const QString& folder) {
    FileDialog dialog;
    dialog.Title = QStringLiteral("Find Student Photographs");
    dialog.FileName = folder;
    dialog.Filter = QStringLiteral("JPeg (*.jpg)|*.jpg|Bit Map (*.bmp)|*.bmp");
    return dialog;
}

PhotoChoice ChoosePhoto(const QString& fileName) {
    PhotoChoice choice{LowerCase(fileName), fileName.right(ExtensionLength)};
    const QString kind = UpperCase(choice.Extension);
    choice.IsValid = kind == QStringLiteral(".JPG") || kind == QStringLiteral(".BMP");
    if (choice.IsValid) {
        choice.Folder.truncate(choice.Folder.lastIndexOf(u'\\') + 1);
    }
    return choice;
}

Message InvalidPhoto(const QString& fileName, const QString& extension) {
    return {QStringLiteral("PHOTO FILE ERROR"),
            QStringLiteral("Invalid Path (") + fileName + QStringLiteral(") or Extension (") + extension +
                QStringLiteral(") to student photo files."),
            MessageButtons::Ok, MessageIcon::None};
}
