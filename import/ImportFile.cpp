#include "import/ImportFile.h"

#include "import/FileBytes.h"
#include "import/PieceReader.h"
#include "import/Utf8Suspicion.h"
#include "platform/Desktop.h"
#include "platform/Volumes.h"

#include <chrono>
#include <utility>

namespace {

constexpr auto ProgressInterval = std::chrono::milliseconds(40);
constexpr int LongestWait = 20; // milliseconds without a word to the callback

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

using RecordReading = ImportFile::RecordReading;

RecordReading Failure(const SystemError& error) {
    return {{ImportFile::Outcome::Failed, error}, {}};
}

RecordReading ReadFirst(const QString& path) {
    RandomAccessFile file;
    if (const SystemError error = file.Open(path)) {
        return Failure(error);
    }
    const std::int64_t size = file.Stamp().Size;
    if (size == 0) {
        return Failure(MakeError(ErrorNumber::InputPastEnd));
    }
    FileBytes bytes(file);
    ImportRecord record = SplitImportRecord(bytes, 0, bytes.LineEnd(0, size));
    return bytes.Error() ? Failure(bytes.Error()) : RecordReading{{}, std::move(record)};
}

struct RecordPlace {
    LineIndex::Mark Mark;
    std::int64_t Number = 1;
    FileStamp Stamp; // of the file that the mark belongs to
};

RecordReading ReadRecord(const QString& path, const RecordPlace& wanted) {
    RandomAccessFile file;
    if (const SystemError error = file.Open(path)) {
        return Failure(error);
    }
    if (file.Stamp() != wanted.Stamp) {
        return {{ImportFile::Outcome::Changed, {}}, {}};
    }
    FileBytes bytes(file);
    const std::int64_t end = wanted.Stamp.Size;
    const std::int64_t start = bytes.PassLines(wanted.Mark.Place, wanted.Number - wanted.Mark.Line, end);
    ImportRecord record = SplitImportRecord(bytes, start, bytes.LineEnd(start, end));
    if (bytes.Error()) {
        const bool shrunk = bytes.Error() == MakeError(ErrorNumber::InputPastEnd);
        return {{shrunk ? ImportFile::Outcome::Changed : ImportFile::Outcome::Failed, bytes.Error()}, {}};
    }
    return {{}, std::move(record)};
}

} // namespace

// A path without its root would be looked up from the drive's current folder, which may change meanwhile.
ImportFile::ImportFile(const QString& pathToUse)
    : path(pathToUse.isEmpty() ? pathToUse : TheDesktop().TheVolumes().WholePath(pathToUse)) {}

ImportFile::Reader ImportFile::ReaderOfFirst() const {
    return [file = path] { return ReadFirst(file); };
}

ImportFile::Result ImportFile::Count(const Progress& progress) {
    index = LineIndex();
    looksLikeUtf8 = false;
    Result result;
    Utf8Suspicion utf8;
    PacedProgress paced(progress);
    PieceReader reader(path);
    std::int64_t counted = 0;
    PieceReader::Piece piece;
    while (piece.What != PieceReader::State::Ended && result.What == Outcome::Done) {
        piece = reader.Next(LongestWait);
        index.Add(piece.Bytes, piece.Size);
        utf8.Add(piece.Bytes, piece.Size);
        counted += piece.Size;
        if (piece.What != PieceReader::State::Ended && !paced.MayGoOn(counted, reader.Stamp().Size)) {
            result.What = Outcome::Stopped;
        }
    }
    stamp = reader.Stamp();
    if (result.What == Outcome::Stopped && counted > 0 && counted == stamp.Size) {
        result.What = Outcome::Done; // there was nothing left to stop
    }
    looksLikeUtf8 = utf8.Suspected();
    if (result.What == Outcome::Done && reader.Error()) {
        result = {Outcome::Failed, reader.Error()};
    } else if (result.What == Outcome::Done) {
        stamp.Size = counted; // a file that grew meanwhile is noticed by its time
    }
    return result;
}

ImportFile::Reader ImportFile::ReaderOf(std::int64_t number) const {
    const RecordPlace place{index.MarkBefore(number), number, stamp};
    return [file = path, place] { return ReadRecord(file, place); };
}
