#pragma once

#include "platform/widgets/Captions.h"

#include <span>

/// The captions of the import setup window in both languages; the field list's are in FieldList.h.
std::span<const Caption> ImportCaptions();

/// What follows the program's title in the window's title.
QString ImportTitleSuffix(CaptionLanguage language);

/// The name of the setup file beside the import file.
QString SetupFileNameOf(CaptionLanguage language);

/// Two lines that explain a birth date format (0 to 5), in English only.
QString DobInstructions(int dobFormat);
