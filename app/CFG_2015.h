#pragma once

/// The shared module of the program: what every window may use.

#include "app/ConfigFile.h"    // the settings record's file: read, write, defaults
#include "app/Dates.h"         // date texts and calendar names
#include "app/InputChecks.h"   // checks of typed text
#include "app/PrinterFont.h"   // the printer font check of start-up
#include "app/ProductTexts.h"  // product texts, program folder, edition
#include "app/ProgramConfig.h" // the settings record
#include "platform/Desktop.h"  // messages and the answer to the last one
