#pragma once

#include "app/ProductTexts.h"

#include <QHash>
#include <QString>

/// The captions of the main menu for an edition, by control name. They name the product and the files, so the product
/// texts must be set; the French ones name ConfigFileName as it stands at that time.
QHash<QString, QString> MasterCaptions(Edition edition);
