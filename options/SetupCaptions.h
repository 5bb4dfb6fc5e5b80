#pragma once

#include "platform/widgets/Captions.h"

#include <span>

/// The captions of General Options in both editions, control by control. Where both texts are the same, the French
/// edition stays English: what those lines describe exists in the English gradebook only under its English name.
std::span<const Caption> SetupCaptions();
