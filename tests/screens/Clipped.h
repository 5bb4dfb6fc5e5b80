#pragma once

#include <QStringList>

class QWidget;

/// The controls of a shown window whose text has less room than it takes, or that stick out of what they lie in:
/// one line of text for each, empty when all fits.
QStringList ClippedControls(const QWidget& window);
