#pragma once

#include "platform/CaptionLanguage.h"

#include <QString>
#include <span>

class QWidget;

/// One caption of a window: the control's object name and its text in both editions (UTF-8; '&' marks the access key).
struct Caption {
    const char* Control;
    const char* English;
    const char* French;
};

/// Gives each named control of the window its caption: text of labels and buttons, title of group boxes.
/// Placeholders in the texts are not replaced. A control that the window lacks is a mistake of the table: debug builds
/// stop.
void ApplyCaptions(QWidget& window, std::span<const Caption> table, CaptionLanguage language);

/// Sets one caption the same way.
void SetCaption(QWidget& control, const QString& text);
