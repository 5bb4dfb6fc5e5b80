#pragma once

#include <QStringList>

/// Whether the default printer can use a font: there is a printer, and the machine has a font family of that name
/// (in any case).
bool PrinterCanUse(const QString& fontName, bool hasPrinter, const QStringList& families);
