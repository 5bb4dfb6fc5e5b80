#pragma once

#include "platform/widgets/Captions.h"

#include <QString>
#include <span>

/// The texts of the Admin Edition rules window in both editions, exactly as administrators know them.

/// The captions of its controls.
std::span<const Caption> AdminCaptions();

/// What stands after the application's title in the window's title.
QString AdminTitleSuffix(CaptionLanguage language);

/// What the box before Browse's dialog says; the same in both editions but for the product's name.
QString AdminBrowseText(const QString& productName);
inline constexpr char AdminBrowseTitle[] = "Locate Gradewell Data Folders";
