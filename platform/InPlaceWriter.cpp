#include "platform/InPlaceWriter.h"

#include "platform/OpenFile.h"

#include <algorithm>

namespace {

int Overwrite(OpenFile& open, qsizetype oldSize, const QByteArray& bytes) {
    int failure = 0;
    if (bytes.size() > oldSize) {
        failure = open.WriteAllAt(oldSize, bytes.mid(oldSize));
        failure = failure != 0 ? failure : open.Sync(); // some systems find the space only now
    }
    if (failure == 0) {
        failure = open.WriteAllAt(0, bytes.left(std::min(oldSize, bytes.size())));
    }
    if (failure == 0 && bytes.size() < oldSize) {
        failure = open.Truncate(bytes.size());
    }
    return failure != 0 ? failure : open.Sync();
}

// `touched` tells whether anything can have been written.
int OverwriteAndCompare(SystemCalls& calls, const NativePath& file, qsizetype oldSize, const QByteArray& bytes,
                        bool& touched) {
    OpenFile open(calls, RetriedWhileHeld(calls, [&] { return calls.OpenForWriting(file); }));
    int failure = open.Failure();
    touched = failure == 0;
    failure = failure != 0 ? failure : Overwrite(open, oldSize, bytes);
    failure = failure != 0 ? failure : open.Close();
    QByteArray written;
    failure = failure != 0 ? failure : ReadFile(calls, file, written);
    return failure == 0 && written != bytes ? EIO : failure;
}

// Each step is tried whatever became of the one before.
void PutBack(SystemCalls& calls, const NativePath& file, const QByteArray& old) {
    OpenFile open(calls, RetriedWhileHeld(calls, [&] { return calls.OpenForWriting(file); }));
    if (open.Failure() == 0) {
        open.Truncate(old.size());
        open.WriteAllAt(0, old);
        open.Sync();
    }
}

} // namespace

int WriteInPlace(SystemCalls& calls, const NativePath& file, const QByteArray& bytes) {
    QByteArray old;
    if (const int failure = ReadFile(calls, file, old)) {
        return failure; // what cannot be read could not be put back
    }
    bool touched = false;
    const int failure = OverwriteAndCompare(calls, file, old.size(), bytes, touched);
    if (failure != 0 && touched) {
        PutBack(calls, file, old);
    }
    return failure;
}
