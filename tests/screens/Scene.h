#pragma once

#include "app/ProductTexts.h"
#include "tests/import/FaultyDisk.h"
#include "tests/support/TestFolder.h"

/// A machine with the sample files, as a window finds it after the program's start in an edition.
class Scene {
public:
    explicit Scene(Edition edition);

    FaultyDisk Disk;
    TestFolder Machine{Disk};
    /// Puts the Transfer Program into the program folder, so that the menu offers its area.
    void AddTransferProgram();
};
