#include "tests/trust/RecordingCalls.h"

using Change = DiskOperation::Kind;

int RecordingCalls::Opened(int handle, DiskOperation::Kind kind, const NativePath& path) {
    if (handle >= 0) {
        opened[handle] = {++files, 0};
        Operations.push_back({kind, path.lexically_normal(), {}, files});
    }
    return handle;
}

int RecordingCalls::OpenForWriting(const NativePath& path) {
    return Opened(FaultyCalls::OpenForWriting(path), Change::Open, path);
}

int RecordingCalls::CreateExclusive(const NativePath& path, unsigned mode) {
    return Opened(FaultyCalls::CreateExclusive(path, mode), Change::Create, path);
}

std::int64_t RecordingCalls::Write(int handle, const char* bytes, std::int64_t size) {
    const std::int64_t written = FaultyCalls::Write(handle, bytes, size);
    if (written > 0) {
        OpenedFile& file = opened[handle];
        const QByteArray taken(bytes, static_cast<qsizetype>(written));
        Operations.push_back({Change::Write, {}, {}, file.file, file.position, taken});
        file.position += written;
    }
    return written;
}

std::int64_t RecordingCalls::Seek(int handle, std::int64_t position) {
    const std::int64_t reached = FaultyCalls::Seek(handle, position);
    if (reached >= 0) {
        opened[handle].position = reached;
    }
    return reached;
}

int RecordingCalls::Truncate(int handle, std::int64_t size) {
    const int result = FaultyCalls::Truncate(handle, size);
    if (result == 0) {
        Operations.push_back({Change::Truncate, {}, {}, opened[handle].file, size});
    }
    return result;
}

int RecordingCalls::Sync(int handle) {
    const int result = FaultyCalls::Sync(handle);
    if (result == 0) {
        Operations.push_back({Change::SyncFile, {}, {}, opened[handle].file});
    }
    return result;
}

int RecordingCalls::Replace(const NativePath& source, const NativePath& target) {
    const int result = FaultyCalls::Replace(source, target);
    if (result == 0) {
        Operations.push_back({Change::Replace, source.lexically_normal(), target.lexically_normal()});
    }
    return result;
}

int RecordingCalls::Remove(const NativePath& path) {
    const int result = FaultyCalls::Remove(path);
    if (result == 0) {
        Operations.push_back({Change::Remove, path.lexically_normal()});
    }
    return result;
}

int RecordingCalls::SyncFolder(const NativePath& folder) {
    const int result = FaultyCalls::SyncFolder(folder);
    if (result == 0) {
        Operations.push_back({Change::SyncFolder, (folder / "x").lexically_normal().parent_path()});
    }
    return result;
}
