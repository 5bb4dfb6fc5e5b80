#pragma once

#include "platform/SystemCalls.h"

#include <QByteArray>
#include <cerrno>

/// Repeats a call that was interrupted, a bounded number of times, and returns its last result.
template <typename Call>
auto Retried(Call call) {
    constexpr int MostTries = 100;
    auto result = call();
    for (int tries = 1; tries < MostTries && result == -EINTR; ++tries) {
        result = call();
    }
    return result;
}

/// Repeats a call for up to 2 s while another program holds the file (-EBUSY), and returns its last result. Interrupted
/// calls are repeated, too.
template <typename Call>
auto RetriedWhileHeld(SystemCalls& calls, Call call) {
    constexpr int MostMilliseconds = 2000;
    constexpr int BetweenTries = 50;
    auto result = Retried(call);
    for (int waited = 0; waited < MostMilliseconds && result == -EBUSY; waited += BetweenTries) {
        calls.Wait(BetweenTries);
        result = Retried(call);
    }
    return result;
}

/// An open file whose reads and writes go on after interrupted and short calls. It is closed at the end of its life.
/// Every routine returns 0 on success and the errno value on failure.
class OpenFile {
public:
    /// Takes the result of one of the opening calls: a handle, or minus the errno value.
    OpenFile(SystemCalls& calls, int handle);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// 0 for an open file, else why it could not be opened.
    int Failure() const { return handle < 0 ? -handle : 0; }

    /// Writes all bytes from the current position on. A device that takes nothing for too long is EIO.
    int WriteAll(const QByteArray& bytes);
    /// Writes all bytes at a position.
    int WriteAllAt(std::int64_t position, const QByteArray& bytes);
    /// Reads from the current position to the end of the file.
    int ReadAll(QByteArray& bytes);
    int Truncate(std::int64_t size);
    int SetMode(unsigned mode);
    int SetOwner(unsigned owner, unsigned group);
    int Sync();
    /// Closes the file. An interrupted close has closed it: the handle may be another file's by now, so it is not
    /// repeated, and no failure, because what was written before is what Sync and a later read answer for.
    int Close();

private:
    SystemCalls& calls;
    int handle;
};

/// The whole content of a file; 0 or the errno value.
int ReadFile(SystemCalls& calls, const NativePath& path, QByteArray& bytes);

/// Makes `path`, while it is a symbolic link, what the link names, and tells what that is. A relative link starts at
/// its own folder. Returns 0, ELOOP for links that lead in a circle, ENOENT when there is no such file (`path` is then
/// the name that a new file has to take), or another errno value.
int FollowLinks(SystemCalls& calls, NativePath& path, SystemCalls::FileStatus& status);
