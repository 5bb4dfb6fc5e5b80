#pragma once

/// Sets the default printer's font to ProgramConfig.PrinterFontName. When that fails (no printer, a broken driver, the
/// font missing) the name becomes "Arial" and one message in the edition's language tells it. Never stops the start-up.
void CheckPrinterFont();
