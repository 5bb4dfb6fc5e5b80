#pragma once

#include "platform/SystemCalls.h"

#include <functional>
#include <vector>

/// The real system calls, of which a test can make any one fail. The calls are counted from 1; a failing call does
/// nothing, except that Close does close. Syncs are counted but left out: no test cuts the power.
class FaultyCalls : public SystemCalls {
public:
    enum class Kind {
        Status,
        ReadLink,
        OpenForReading,
        OpenForWriting,
        CreateExclusive,
        Read,
        Write,
        Seek,
        Truncate,
        SetMode,
        SetOwner,
        Sync,
        Close,
        Replace,
        Remove,
        SyncFolder,
        ListNames
    };
    enum class Repeat { Once, Onwards };

    /// Thrown by the call at which the run is killed, and by each one after it.
    struct Killed {};

    /// Call number `number` fails with `error`: that one only, or it and all after it.
    void FailCall(int number, int error, Repeat repeat = Repeat::Once);
    /// Call number `number`, when it is a write, takes half of the bytes: that one only, or each one from it on.
    void ShortenCall(int number, Repeat repeat = Repeat::Once);
    /// Every call of the kind fails with `error`.
    void FailAll(Kind kind, int error);
    /// The first `times` calls of the kind fail with `error`.
    void FailFirst(Kind kind, int error, int times);
    /// Calls of the kind are done, and yet report `error`.
    void FailAfterwards(Kind kind, int error);
    /// The run ends before call number `number`.
    void KillAt(int number) { killedAt = number; }

    int MostBytesAWrite = 0;          ///< above 0: a write takes no more than that many bytes
    int MostBytesARead = 0;           ///< above 0: a read gives no more than that many bytes
    bool WritesTakeNothing = false;   ///< a write returns 0
    bool SpoilsWrites = false;        ///< a write stores other bytes than it was given
    std::function<void(Kind)> Before; ///< runs before each call

    /// The kinds of the calls so far, in order.
    std::vector<Kind> Made;
    int Count() const { return static_cast<int>(Made.size()); }
    int CountOf(Kind kind) const;
    /// The kinds of the calls that failed.
    std::vector<Kind> Failed;
    bool HasFailed(Kind kind) const;
    /// Handles that were opened and not closed.
    int OpenHandles = 0;

    std::int64_t Number = 0;                     ///< above 0: the number of this run
    std::function<bool(std::int64_t)> AliveRuns; ///< which runs are alive; unset: the system is asked

    int Status(const NativePath& path, FileStatus& status) override;
    int ReadLink(const NativePath& path, NativePath& target) override;
    int OpenForReading(const NativePath& path) override;
    int OpenForWriting(const NativePath& path) override;
    int CreateExclusive(const NativePath& path, unsigned mode) override;
    std::int64_t Read(int handle, char* buffer, std::int64_t size) override;
    std::int64_t Write(int handle, const char* bytes, std::int64_t size) override;
    std::int64_t Seek(int handle, std::int64_t position) override;
    int Truncate(int handle, std::int64_t size) override;
    int SetMode(int handle, unsigned mode) override;
    int SetOwner(int handle, unsigned owner, unsigned group) override;
    int Sync(int handle) override;
    int Close(int handle) override;
    int Replace(const NativePath& source, const NativePath& target) override;
    int Remove(const NativePath& path) override;
    int SyncFolder(const NativePath& folder) override;
    int ListNames(const NativePath& folder, std::vector<NativePath>& names) override;
    std::int64_t ProcessNumber() override;
    bool ProcessIsAlive(std::int64_t number) override;
    void Wait(int milliseconds) override { Waited += milliseconds; }

    int Waited = 0; ///< milliseconds that were to be waited

private:
    struct KindFault {
        Kind kind;
        int error;
        int times; // below 0: always
    };

    SystemCalls* real = &RealSystemCalls();
    int failedCall = 0;
    int callError = 0;
    Repeat callRepeat = Repeat::Once;
    int shortCall = 0;
    Repeat shortRepeat = Repeat::Once;
    std::vector<KindFault> kindFaults;
    std::vector<KindFault> afterFaults;
    int killedAt = 0;

    int FaultOf(Kind kind);
    int Opened(Kind kind, const std::function<int()>& open);
    template <typename Result, typename Call>
    Result Do(Kind kind, Call call);
};
