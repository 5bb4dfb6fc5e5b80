#include "app/PrinterFont.h"

#include "app/ProductTexts.h"
#include "app/ProgramConfig.h"
#include "platform/Desktop.h"

namespace {

constexpr char SubstituteFont[] = "Arial";

struct FontTexts {
    const char* title;
    const char* heading;
    const char* usedOnBefore; // between the font and the product name
    const char* usedOnAfter;
    const char* substituted;
    const char* note;
};

constexpr FontTexts EnglishTexts = {
    "PRINTER FONT ERROR",
    "The following printer font(s) is not available on this computer: ",
    "] used on all ",
    " printed forms.",
    "ARIAL has been substituted. If Arial is not on this system, printing errors will occur.",
    "Note: This message may be appearing because this computer does not have a printer installed or there is a problem "
    "with your printer driver.",
};

constexpr FontTexts FrenchTexts = {
    "Erreur de police d'imprimante",
    "Les polices d'imprimante suivates ne sont pas disponible sur cet ordinateur: ",
    "] est la police utilisée sur toutes les formes imprimées de ",
    ".",
    "ARIAL vient d'être substitué. Si la police Arial ne se trouve pas sur ce système, il y aura des erreurs "
    "d'impression.",
    "Notez: Il se peut que ce message apparaisse parce que cet ordinateur manque l'installation d'une imprimante ou il "
    "y a un problème avec le pilote d'imprimante.",
};

QString Utf8(const char* text) {
    return QString::fromUtf8(text);
}

} // namespace

void CheckPrinterFont() {
    if (TheDesktop().SetPrinterFont(ProgramConfig.PrinterFontName)) {
        return;
    }
    const FontTexts& texts = ProgramEdition == Edition::French ? FrenchTexts : EnglishTexts;
    const QString missing = QStringLiteral(" -> [") + ProgramConfig.PrinterFontName + Utf8(texts.usedOnBefore) +
                            ProductName + Utf8(texts.usedOnAfter) + QStringLiteral("\n\n");
    ProgramConfig.PrinterFontName = Utf8(SubstituteFont);
    ShowNotice(MessageIcon::Critical, Utf8(texts.title),
               Utf8(texts.heading) + QLatin1Char('\n') + missing + QLatin1Char('\n') + Utf8(texts.substituted) +
                   QStringLiteral("\n\n") + Utf8(texts.note) + QLatin1Char('\n'));
}
