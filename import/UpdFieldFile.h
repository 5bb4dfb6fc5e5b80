#pragma once

#include "import/SetupFile.h"
#include "platform/SystemError.h"

/// The setup file on the disk. Paths are in the program's form.

/// Writes the setup file beside the import file, wholly or not at all. Does nothing when the import path has no folder.
SystemError SaveUpdFieldCFG(const QString& importPath, const QString& setupFileName, const ImportSetup& setup);

/// The bytes of a setup file, as far as they could be read.
struct SetupBytes {
    QByteArray Lines;       ///< whole lines only, when the reading failed
    bool WholeFile = false; ///< false when the file is missing or cannot be read to its end
};

/// Reads the bytes of a setup file; a thread of its own may do it.
SetupBytes ReadSetupBytes(const QString& setupFile);

/// What came of reading a setup file.
struct SetupReading {
    bool Complete = false;          ///< read to its end and checked
    std::vector<SetupFault> Faults; ///< to be shown one after another
};

/// Sets ActiveFields to 0 and takes over the lines of a setup file. When the file could not be read to its end, or
/// holds a number that does not fit, what was read up to there stays, unchecked.
SetupReading TakeSetupBytes(const SetupBytes& bytes, const FieldList& fields, ImportSetup& setup);

/// Deletes the setup file beside the import file; any failure is ignored.
void DeleteUpdFieldCFG(const QString& importPath, const QString& setupFileName);
