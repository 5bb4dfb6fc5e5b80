#include "platform/qt/PrinterFonts.h"

bool PrinterCanUse(const QString& fontName, bool hasPrinter, const QStringList& families) {
    return hasPrinter && families.contains(fontName, Qt::CaseInsensitive);
}
