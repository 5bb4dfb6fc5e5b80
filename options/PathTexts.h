#pragma once

#include "platform/Desktop.h"

#include <QString>

/// Texts of the four folders of General Options; English in both editions.

/// The information before Browse for the data and backup folders; it names the product.
QString DataFolderNotice(const QString& productName);

/// The same for the folder of HTML reports.
QString HtmlFolderNotice();

/// The information before Browse for student photographs.
Message PhotoNotice();

/// The dialog that finds a student photograph; it opens in `folder` (with a trailing backslash, may be empty).
FileDialog PhotoDialog(const QString& folder);

/// A chosen photograph as its folder (with the trailing backslash, small letters) and its extension as typed, with its
/// dot. A file of another kind is not valid; then `Folder` is the whole file name in small letters.
struct PhotoChoice {
    QString Folder;
    QString Extension; ///< the last four characters
    bool IsValid = false;
};
PhotoChoice ChoosePhoto(const QString& fileName);

/// The refusal of such a file.
Message InvalidPhoto(const QString& fileName, const QString& extension);
