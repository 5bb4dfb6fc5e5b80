#include "platform/qt/PrinterFonts.h"

bool PrinterCanUse(const QString& fontName, const QStringList& families, const std::function<bool()>& hasPrinter) {
    return families.contains(fontName, Qt::CaseInsensitive) && hasPrinter();
}
