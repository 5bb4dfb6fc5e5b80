#pragma once

#include "platform/CaptionLanguage.h"
#include "platform/Desktop.h"

/// What keeps a name chosen in a file dialog from being taken: its folder has to exist (PathMustExist, and of course
/// FileMustExist), or the file itself. A sentence for the user in the language, empty when the name may be taken.
QString ObjectionTo(const QString& nativeName, const FileDialog& dialog, CaptionLanguage language);
