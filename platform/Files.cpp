#include "platform/Files.h"

#include "platform/Desktop.h"
#include "platform/OpenFile.h"
#include "platform/SafeWriter.h"
#include "platform/Volumes.h"

namespace {

constexpr unsigned AnyWrite = 0222;

struct Located {
    NativePath Path; // as named, a symbolic link not followed
    SystemCalls::FileStatus Status;
    SystemError Error;
};

// A shared folder may answer once from an old list: what is said to be missing is asked for again. Whoever believed a
// wrong answer could save over a file that was never read.
template <typename Call>
int AskedTwice(Call call) {
    const int failure = call();
    return failure == ENOENT ? call() : failure;
}

// Finds a regular file; anything else of that name is number 75.
Located LocateFile(const QString& path) {
    const Volumes::NativeResult native = TheDesktop().TheVolumes().ToNative(path);
    Located found{native.Path, {}, native.Error};
    if (!found.Error) {
        found.Error = ErrorFromErrno(AskedTwice([&] {
            NativePath followed = native.Path;
            return FollowLinks(TheDesktop().TheSystemCalls(), followed, found.Status);
        }));
    }
    if (!found.Error && !found.Status.IsRegularFile) {
        found.Error = MakeError(ErrorNumber::PathFileAccess);
    }
    return found;
}

} // namespace

FileContents ReadWholeFile(const QString& path) {
    const Located file = LocateFile(path);
    if (file.Error) {
        return {{}, file.Error};
    }
    QByteArray bytes;
    const SystemError error =
        ErrorFromErrno(AskedTwice([&] { return ReadFile(TheDesktop().TheSystemCalls(), file.Path, bytes); }));
    return {error ? QByteArray() : bytes, error};
}

SystemError SaveWholeFile(const QString& path, const QByteArray& bytes) {
    const Volumes::NativeResult native = TheDesktop().TheVolumes().ToNative(path);
    return native.Error ? native.Error : SafeSave(TheDesktop().TheSystemCalls(), native.Path, bytes);
}

SystemError DeleteWholeFile(const QString& path) {
    const Located file = LocateFile(path);
    if (file.Error) {
        return file.Error;
    }
    if ((file.Status.Mode & AnyWrite) == 0) {
        return MakeError(ErrorNumber::PermissionDenied); // a read-only file is kept, as on the teachers' stations
    }
    SystemCalls& calls = TheDesktop().TheSystemCalls();
    return ErrorFromErrno(-Retried([&] { return calls.Remove(file.Path); }));
}

FilePresence LookForFile(const QString& path) {
    const Located file = LocateFile(path);
    if (!file.Error) {
        return FilePresence::Present;
    }
    const bool missing = file.Error == MakeError(ErrorNumber::FileNotFound) || file.Status.IsFolder;
    return missing ? FilePresence::Missing : FilePresence::Unknown;
}

bool FileExists(const QString& path) {
    return LookForFile(path) == FilePresence::Present;
}

bool FileOpens(const QString& path) {
    const Located file = LocateFile(path);
    if (file.Error) {
        return false;
    }
    SystemCalls& calls = TheDesktop().TheSystemCalls();
    const OpenFile open(calls, Retried([&] { return calls.OpenForReading(file.Path); }));
    return open.Failure() == 0;
}
