#pragma once

#include <QString>

/// The language of captions and of the messages that follow the edition.
enum class CaptionLanguage { English, French };

/// The text in the language, of two that are UTF-8.
inline QString InLanguage(CaptionLanguage language, const char* english, const char* french) {
    return QString::fromUtf8(language == CaptionLanguage::French ? french : english);
}
