#pragma once

#include "app/ProductTexts.h"
#include "tests/screens/Viewer.h"

/// Shows each window, in the states that look different. Import, Admin and Transfer open with English
/// captions in both editions; in the French one they are taken with the French captions, too.

void TakeMenu(Edition edition, Viewer& viewer);
void TakeGeneralOptions(Edition edition, Viewer& viewer);
void TakeImport(Edition edition, Viewer& viewer);
void TakeAdmin(Edition edition, Viewer& viewer);
void TakeTransfer(Edition edition, Viewer& viewer);
/// The menu while a slow share lets a save wait.
void TakeSaving(Edition edition, Viewer& viewer);
