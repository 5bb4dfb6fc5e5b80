#include "import/UpdFieldFile.h"

#include "platform/Desktop.h"
#include "platform/Files.h"
#include "platform/RandomAccessFile.h"

#include <algorithm>

namespace {

constexpr std::int64_t PieceSize = std::int64_t{64} * 1024;

} // namespace

SetupBytes ReadSetupBytes(const QString& setupFile) {
    SetupBytes read;
    RandomAccessFile file;
    if (file.Open(setupFile)) {
        return read;
    }
    std::vector<char> piece(PieceSize);
    std::int64_t count = PieceSize;
    while (count == PieceSize) {
        const SystemError error = file.ReadAt(read.Lines.size(), piece.data(), PieceSize, count);
        read.Lines.append(piece.data(), count);
        if (error) {
            read.Lines.truncate(std::max(read.Lines.lastIndexOf('\n'), read.Lines.lastIndexOf('\r')) + 1);
            return read;
        }
    }
    read.WholeFile = true;
    return read;
}

SystemError SaveUpdFieldCFG(const QString& importPath, const QString& setupFileName, const ImportSetup& setup) {
    const QString target = SetupFileBeside(importPath, setupFileName);
    return target.isEmpty() ? SystemError() : RunSave([&] { return SaveWholeFile(target, WriteSetup(setup)); });
}

SetupReading TakeSetupBytes(const SetupBytes& bytes, const FieldList& fields, ImportSetup& setup) {
    setup.ActiveFields = 0;
    if (!ReadSetup(bytes.Lines, setup) || !bytes.WholeFile) {
        return {};
    }
    return {true, CheckMatches(setup, fields)};
}

void DeleteUpdFieldCFG(const QString& importPath, const QString& setupFileName) {
    const QString target = SetupFileBeside(importPath, setupFileName);
    if (!target.isEmpty()) {
        RunSave([&] { return DeleteWholeFile(target); });
    }
}
