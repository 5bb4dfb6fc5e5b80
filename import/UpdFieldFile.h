#pragma once

#include "import/SetupFile.h"
#include "platform/SystemError.h"

/// The setup file on the disk. Paths are in the program's form.

/// Writes the setup file beside the import file, wholly or not at all. Does nothing when the import path has no folder.
SystemError SaveUpdFieldCFG(const QString& importPath, const QString& setupFileName, const ImportSetup& setup);

/// What came of reading a setup file.
struct SetupReading {
    bool Complete = false;          ///< read to its end and checked
    std::vector<SetupFault> Faults; ///< to be shown one after another
};

/// Sets ActiveFields to 0 and reads the setup file into `setup`. When the file cannot be read to its end, what was
/// read up to then stays, unchecked; only a count outside 0 to 24 becomes 0.
SetupReading ReadUpdFieldCFG(const QString& setupFile, const FieldList& fields, ImportSetup& setup);

/// Deletes the setup file beside the import file; any failure is ignored.
void DeleteUpdFieldCFG(const QString& importPath, const QString& setupFileName);
