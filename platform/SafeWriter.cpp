#include "platform/SafeWriter.h"

#include "platform/InPlaceWriter.h"
#include "platform/OpenFile.h"
#include "platform/TemporaryName.h"

#include <utility>

namespace {

constexpr unsigned OnlyOwner = 0600;
constexpr unsigned Everybody = 0666; // the system takes away what the user's mask forbids
constexpr unsigned AnyRead = 0444;
constexpr unsigned AnyWrite = 0222;
constexpr unsigned OwnerRead = 0400;
constexpr unsigned GroupRead = 0040;
constexpr unsigned OtherRead = 0004;

// A file to be saved, symbolic links followed.
struct Target {
    NativePath Path;
    bool Exists = false;
    SystemCalls::FileStatus Old;
};

SystemError FolderError(int failure) {
    return failure == ENOENT || failure == ENOTDIR ? MakeError(ErrorNumber::PathNotFound) : ErrorFromErrno(failure);
}

// Nothing that its owner protected is replaced, although the folder's permissions alone would allow it.
int ProbeForWriting(SystemCalls& calls, const Target& target) {
    if ((target.Old.Mode & AnyWrite) == 0) {
        return EACCES; // also for an administrator, whom the system would let pass
    }
    OpenFile open(calls, Retried([&] { return calls.OpenForWriting(target.Path); }));
    return open.Failure() == EBUSY ? 0 : open.Failure(); // another program has it open now; the move waits for it
}

SystemError FindTarget(SystemCalls& calls, Target& target) {
    const NativePath named = target.Path;
    int failure = FollowLinks(calls, target.Path, target.Old);
    if (failure == ENOENT) {
        // A shared folder may answer once from an old list; what stands there would lose its link, mode and owner.
        const NativePath first = std::exchange(target.Path, named);
        failure = FollowLinks(calls, target.Path, target.Old);
        target.Path = failure == ENOENT && target.Path == named ? first : target.Path;
    }
    target.Exists = failure == 0;
    if (failure != 0 && failure != ENOENT) {
        return ErrorFromErrno(failure);
    }
    if (target.Exists) {
        return target.Old.IsRegularFile ? ErrorFromErrno(ProbeForWriting(calls, target))
                                        : MakeError(ErrorNumber::PathFileAccess);
    }
    SystemCalls::FileStatus folder;
    const NativePath inFolder = target.Path.parent_path() / "."; // "." looks through a symbolic link
    return FolderError(-Retried([&] { return calls.Status(inFolder, folder); }));
}

// A file that cannot be removed is left for a later save; one of this run's number is a dead run's, too.
void RemoveLeftovers(SystemCalls& calls, const NativePath& target) {
    std::vector<NativePath> names;
    if (Retried([&] { return calls.ListNames(target.parent_path(), names); }) != 0) {
        names = {TemporaryName(target, calls.ProcessNumber()).filename()};
    }
    for (const NativePath& name : names) {
        const auto process = ProcessOfTemporaryName(target, name);
        if (process && (*process == calls.ProcessNumber() || !calls.ProcessIsAlive(*process))) {
            Retried([&] { return calls.Remove(target.parent_path() / name); });
        }
    }
}

// Gives the temporary file the owner, the group and the mode of the old one. Whoever could read the old file as its
// owner or through its group, and does not keep that, must be able to read the new one as anybody else.
int TakeOver(SystemCalls& calls, OpenFile& open, const NativePath& temporary, const SystemCalls::FileStatus& old) {
    SystemCalls::FileStatus now;
    if (const int failure = -Retried([&] { return calls.Status(temporary, now); })) {
        return failure;
    }
    bool ownerKept = now.Owner == old.Owner;
    bool groupKept = now.Group == old.Group;
    if ((!ownerKept || !groupKept) && open.SetOwner(old.Owner, old.Group) == 0) {
        ownerKept = groupKept = true;
    }
    groupKept = groupKept || open.SetOwner(now.Owner, old.Group) == 0;
    unsigned mode = old.Mode;
    mode |= !ownerKept && (old.Mode & OwnerRead) != 0 ? OtherRead : 0;
    mode |= !groupKept && (old.Mode & GroupRead) != 0 ? OtherRead : 0;
    const int failure = open.SetMode(mode);
    if (failure == 0) {
        return 0;
    }
    // A file system without modes: good as long as nobody loses the right to read.
    const bool known = Retried([&] { return calls.Status(temporary, now); }) == 0;
    return known && (mode & AnyRead & ~now.Mode) == 0 ? 0 : failure;
}

int Fill(SystemCalls& calls, OpenFile& open, const NativePath& temporary, const Target& target,
         const QByteArray& bytes) {
    int failure = open.WriteAll(bytes);
    if (failure == 0 && target.Exists) {
        failure = TakeOver(calls, open, temporary, target.Old);
    }
    failure = failure != 0 ? failure : open.Sync();
    failure = failure != 0 ? failure : open.Close();
    QByteArray written;
    failure = failure != 0 ? failure : ReadFile(calls, temporary, written);
    return failure == 0 && written != bytes ? EIO : failure;
}

// Network file systems may move a file and yet report a failure, when their answer was lost and the call repeated.
bool WasMoved(SystemCalls& calls, const NativePath& temporary, const NativePath& target, const QByteArray& bytes) {
    SystemCalls::FileStatus status;
    QByteArray written;
    return Retried([&] { return calls.Status(temporary, status); }) == -ENOENT &&
           ReadFile(calls, target, written) == 0 && written == bytes;
}

// The new file is in its place; this makes the move last through a power loss. A folder that may not be opened or a
// file system that cannot sync folders is no failure. Any other error is reported, although the target is wholly new,
// because nobody can promise that it stays so.
int SyncMove(SystemCalls& calls, const NativePath& folder) {
    const int failure = -Retried([&] { return calls.SyncFolder(folder); });
    switch (failure) {
    case EINVAL:
    case ENOSYS:
    case ENOTSUP:
#if EOPNOTSUPP != ENOTSUP
    case EOPNOTSUPP:
#endif
    case EACCES:
    case EPERM:
        return 0;
    default:
        return failure;
    }
}

SystemError ReplaceTarget(SystemCalls& calls, OpenFile& open, const NativePath& temporary, const Target& target,
                          const QByteArray& bytes) {
    SystemError error = ErrorFromErrno(Fill(calls, open, temporary, target, bytes));
    int moveFailure = 0;
    if (!error) {
        moveFailure = -RetriedWhileHeld(calls, [&] { return calls.Replace(temporary, target.Path); });
        const bool moved = moveFailure == 0 || WasMoved(calls, temporary, target.Path, bytes);
        error = moved ? SystemError() : FolderError(moveFailure);
    }
    if (!error) {
        return ErrorFromErrno(SyncMove(calls, target.Path.parent_path()));
    }
    open.Close();
    Retried([&] { return calls.Remove(temporary); });
    // A folder in which everybody may replace only files of their own takes new files and yet refuses the move.
    return moveFailure == EPERM && target.Exists ? ErrorFromErrno(WriteInPlace(calls, target.Path, bytes)) : error;
}

} // namespace

SystemError SafeSave(SystemCalls& calls, const NativePath& path, const QByteArray& bytes) {
    Target target{path.has_parent_path() ? path : "." / path, false, {}};
    if (SystemError error = FindTarget(calls, target)) {
        return error;
    }
    RemoveLeftovers(calls, target.Path);
    const NativePath temporary = TemporaryName(target.Path, calls.ProcessNumber());
    const unsigned mode = target.Exists ? OnlyOwner : Everybody;
    OpenFile open(calls, Retried([&] { return calls.CreateExclusive(temporary, mode); }));
    const int failure = open.Failure();
    if (failure == 0) {
        return ReplaceTarget(calls, open, temporary, target, bytes);
    }
    const bool refused = failure == EACCES || failure == EPERM || failure == EROFS;
    return refused && target.Exists ? ErrorFromErrno(WriteInPlace(calls, target.Path, bytes)) : FolderError(failure);
}
