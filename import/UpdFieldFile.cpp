#include "import/UpdFieldFile.h"

#include "platform/Files.h"
#include "platform/RandomAccessFile.h"

#include <algorithm>

namespace {

constexpr std::int64_t PieceSize = std::int64_t{64} * 1024;

// All bytes, or those of the whole lines before the place where the reading failed; false when it failed.
bool ReadBytes(const QString& path, QByteArray& bytes) {
    RandomAccessFile file;
    if (file.Open(path)) {
        return false;
    }
    std::vector<char> piece(PieceSize);
    std::int64_t count = PieceSize;
    while (count == PieceSize) {
        if (file.ReadAt(bytes.size(), piece.data(), PieceSize, count)) {
            bytes.append(piece.data(), count);
            bytes.truncate(std::max(bytes.lastIndexOf('\n'), bytes.lastIndexOf('\r')) + 1);
            return false;
        }
        bytes.append(piece.data(), count);
    }
    return true;
}

} // namespace

SystemError SaveUpdFieldCFG(const QString& importPath, const QString& setupFileName, const ImportSetup& setup) {
    const QString target = SetupFileBeside(importPath, setupFileName);
    return target.isEmpty() ? SystemError() : SaveWholeFile(target, WriteSetup(setup));
}

SetupReading ReadUpdFieldCFG(const QString& setupFile, const FieldList& fields, ImportSetup& setup) {
    setup.ActiveFields = 0;
    QByteArray bytes;
    const bool wholeFile = ReadBytes(setupFile, bytes);
    const bool wholeText = ReadSetup(bytes, setup);
    if (wholeFile && wholeText) {
        return {true, CheckMatches(setup, fields)};
    }
    if (setup.ActiveFields < 0 || setup.ActiveFields > MatchLimit) {
        setup.ActiveFields = 0;
    }
    return {};
}

void DeleteUpdFieldCFG(const QString& importPath, const QString& setupFileName) {
    const QString target = SetupFileBeside(importPath, setupFileName);
    if (!target.isEmpty()) {
        DeleteWholeFile(target);
    }
}
