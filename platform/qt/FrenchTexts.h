#pragma once

#include <QTranslator>

/// The French texts of what Qt brings along: the buttons of message boxes, the file and font dialogs and the menu of a
/// text box. Installed for the French edition, so that it needs no translation files of the system.
class FrenchTexts : public QTranslator {
    Q_OBJECT

public:
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int number) const override;
    bool isEmpty() const override { return false; }
};
