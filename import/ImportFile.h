#pragma once

#include "import/LineIndex.h"
#include "import/RecordSplitter.h"
#include "platform/RandomAccessFile.h"

#include <QString>
#include <functional>

/// A student data file, one record a line, shown record by record however large it is: only the places of some lines
/// are kept. The file is open only while it is read, so others may write to it in between; that is noticed.
class ImportFile {
public:
    /// Called several times while the lines are counted, also while a read hangs, with the bytes read and those there
    /// are (0 as long as the file has not been opened); false stops.
    using Progress = std::function<bool(std::int64_t read, std::int64_t size)>;

    enum class Outcome {
        Done,
        Stopped, ///< by Progress; what was counted stays usable
        Changed, ///< somebody has written to the file since it was counted: count again
        Failed,  ///< see Error; what was counted stays usable
    };

    struct Result {
        Outcome What = Outcome::Done;
        SystemError Error;
    };

    struct RecordReading {
        Result Came;
        ImportRecord Record; ///< only when it came
    };

    /// `path` is in the program's form. Nothing is read yet.
    explicit ImportFile(const QString& path = QString());

    /// Reads a record. It owns all that it needs, so that a thread of its own may do it.
    using Reader = std::function<RecordReading()>;

    /// The reader of the first record, before the records have been counted. Fails with number 62 for an empty file.
    Reader ReaderOfFirst() const;

    /// Counts the records and finds out what the file looks like.
    Result Count(const Progress& progress);

    /// The reader of a record, counted from 1, at most RecordCount().
    Reader ReaderOf(std::int64_t number) const;

    /// The records counted so far.
    std::int64_t RecordCount() const { return index.LineCount(); }

    /// Whether the bytes counted so far look like UTF-8 instead of Windows-1252.
    bool LooksLikeUtf8() const { return looksLikeUtf8; }

private:
    QString path;
    LineIndex index;
    FileStamp stamp; // of the counted file
    bool looksLikeUtf8 = false;
};
