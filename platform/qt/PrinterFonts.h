#pragma once

#include <QStringList>
#include <functional>

/// Whether the default printer can use a font: the machine has a font family of that name (in any case), and there is a
/// printer. The printers are asked last, and only when it matters, because the system's printing library takes longer
/// to load than the main menu to paint.
bool PrinterCanUse(const QString& fontName, const QStringList& families, const std::function<bool()>& hasPrinter);
