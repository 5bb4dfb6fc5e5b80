#include "platform/InPlaceWriter.h"

#include "platform/OpenFile.h"

#include <algorithm>

namespace {

// What a reader takes for nothing behind the last line.
QByteArray LineEnds(qsizetype size) {
    return size % 2 == 1 ? '\n' + LineEnds(size - 1) : QByteArray("\r\n").repeated(size / 2);
}

// After each call the file is the old or the new one, with nothing but line ends behind it while it is too long. The
// old part is overwritten in one call, and reaches the disk before the rest is cut off.
int Overwrite(OpenFile& open, qsizetype oldSize, const QByteArray& bytes) {
    int failure = 0;
    if (bytes.size() > oldSize) {
        failure = open.WriteAllAt(oldSize, LineEnds(bytes.size() - oldSize));
        failure = failure != 0 ? failure : open.Sync(); // some systems find the space only now
    }
    if (failure == 0) {
        failure = open.WriteAllAt(0, bytes + LineEnds(std::max<qsizetype>(0, oldSize - bytes.size())));
    }
    if (failure == 0 && bytes.size() < oldSize) {
        failure = open.Sync();
        failure = failure != 0 ? failure : open.Truncate(bytes.size());
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

// What cannot be written again is not cut off either: it may be wholly the new file.
void PutBack(SystemCalls& calls, const NativePath& file, const QByteArray& old) {
    OpenFile open(calls, RetriedWhileHeld(calls, [&] { return calls.OpenForWriting(file); }));
    if (open.Failure() == 0 && open.WriteAllAt(0, old) == 0) {
        open.Truncate(old.size());
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
