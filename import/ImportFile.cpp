#include "import/ImportFile.h"

#include "import/FileBytes.h"
#include "import/Utf8Suspicion.h"

#include <chrono>
#include <utility>
#include <vector>

namespace {

constexpr std::int64_t PieceSize = std::int64_t{128} * 1024;
constexpr auto ProgressInterval = std::chrono::milliseconds(40);

// Asks the callback whether to go on, but not after every piece.
class PacedProgress {
public:
    explicit PacedProgress(const ImportFile::Progress& progressToAsk) : progress(progressToAsk) {}

    bool MayGoOn(std::int64_t read, std::int64_t size) {
        const auto now = std::chrono::steady_clock::now();
        if (!progress || now < next) {
            return true;
        }
        const bool goOn = progress(read, size);
        next = std::chrono::steady_clock::now() + ProgressInterval;
        return goOn;
    }

private:
    const ImportFile::Progress& progress;
    std::chrono::steady_clock::time_point next;
};

} // namespace

ImportFile::ImportFile(QString pathToUse) : path(std::move(pathToUse)) {}

SystemError ImportFile::ReadFirst(ImportRecord& record) const {
    RandomAccessFile file;
    if (SystemError error = file.Open(path)) {
        return error;
    }
    if (file.Stamp().Size == 0) {
        return MakeError(ErrorNumber::InputPastEnd);
    }
    FileBytes bytes(file);
    record = SplitImportRecord(bytes, 0, bytes.LineEnd(0, file.Stamp().Size));
    return bytes.Error();
}

ImportFile::Result ImportFile::Count(const Progress& progress) {
    index = LineIndex();
    stamp = FileStamp();
    counted = 0;
    recordCount = 0;
    looksLikeUtf8 = false;
    RandomAccessFile file;
    if (const SystemError error = file.Open(path)) {
        return {Outcome::Failed, error};
    }
    stamp = file.Stamp();
    Result result;
    Utf8Suspicion utf8;
    PacedProgress paced(progress);
    std::vector<char> piece(PieceSize);
    std::int64_t got = PieceSize;
    while (got == PieceSize && result.What == Outcome::Done) {
        if (const SystemError error = file.ReadAt(counted, piece.data(), PieceSize, got)) {
            result = {Outcome::Failed, error};
        }
        index.Add(piece.data(), got);
        utf8.Add(piece.data(), got);
        counted += got;
        if (result.What == Outcome::Done && got == PieceSize && !paced.MayGoOn(counted, stamp.Size)) {
            result.What = Outcome::Stopped;
        }
    }
    recordCount = index.LineCount();
    looksLikeUtf8 = utf8.Suspected();
    if (result.What == Outcome::Done) {
        stamp.Size = counted; // a file that grew meanwhile is noticed by its time
    }
    return result;
}

ImportFile::Result ImportFile::Read(std::int64_t number, ImportRecord& record) const {
    RandomAccessFile file;
    if (const SystemError error = file.Open(path)) {
        return {Outcome::Failed, error};
    }
    if (file.Stamp() != stamp) {
        return {Outcome::Changed, {}};
    }
    FileBytes bytes(file);
    const LineIndex::Mark mark = index.MarkBefore(number);
    const std::int64_t start = bytes.PassLines(mark.Place, number - mark.Line, stamp.Size);
    ImportRecord found = SplitImportRecord(bytes, start, bytes.LineEnd(start, stamp.Size));
    if (bytes.Error()) {
        const bool shrunk = bytes.Error() == MakeError(ErrorNumber::InputPastEnd);
        return {shrunk ? Outcome::Changed : Outcome::Failed, bytes.Error()};
    }
    record = std::move(found);
    return {};
}
