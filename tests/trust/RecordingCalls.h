#pragma once

#include "tests/support/FaultyCalls.h"

#include <QByteArray>
#include <map>
#include <vector>

/// One change of the disk that a save asked for and got. Paths are normal; `File` numbers the open files.
struct DiskOperation {
    enum class Kind { Open, Create, Write, Truncate, SyncFile, Replace, Remove, SyncFolder };

    Kind What = Kind::Open;
    NativePath Path;
    NativePath Target = {};    ///< of Replace
    int File = 0;              ///< of Open, Create, Write, Truncate and SyncFile
    std::int64_t Position = 0; ///< of Write; the new size of Truncate
    QByteArray Bytes = {};     ///< of Write
};

/// The calls of a test, each successful change of the disk written down in order.
class RecordingCalls : public FaultyCalls {
public:
    std::vector<DiskOperation> Operations;

    int OpenForWriting(const NativePath& path) override;
    int CreateExclusive(const NativePath& path, unsigned mode) override;
    std::int64_t Write(int handle, const char* bytes, std::int64_t size) override;
    std::int64_t Seek(int handle, std::int64_t position) override;
    int Truncate(int handle, std::int64_t size) override;
    int Sync(int handle) override;
    int Replace(const NativePath& source, const NativePath& target) override;
    int Remove(const NativePath& path) override;
    int SyncFolder(const NativePath& folder) override;

private:
    struct OpenedFile {
        int file = 0;
        std::int64_t position = 0;
    };
    std::map<int, OpenedFile> opened; // by handle
    int files = 0;

    int Opened(int handle, DiskOperation::Kind kind, const NativePath& path);
};
