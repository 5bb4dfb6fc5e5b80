#pragma once

#include "app/ProductTexts.h"
#include "tests/screens/Pictures.h"

/// The pictures of each window, in the states that look different. Import, Admin and Transfer open with English
/// captions in both editions; in the French one they are taken with the French captions, too.

void TakeMenu(Edition edition, PictureTaker& pictures);
void TakeGeneralOptions(Edition edition, PictureTaker& pictures);
void TakeImport(Edition edition, PictureTaker& pictures);
void TakeAdmin(Edition edition, PictureTaker& pictures);
void TakeTransfer(Edition edition, PictureTaker& pictures);
