#pragma once

#include <QString>
#include <QStringList>

/// Filters of file dialogs: "JPeg (*.jpg)|*.jpg|Bit Map (*.bmp)|*.bmp", pairs of a label and a pattern.

/// The filters as Qt's dialogs take them, one an entry, each with its pattern in parentheses; upper- and lower-case
/// names match alike, and "*.*" means every file.
QStringList QtFilters(const QString& filter);
