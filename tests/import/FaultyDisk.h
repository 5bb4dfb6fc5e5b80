#pragma once

#include "platform/SystemCalls.h"

#include <QMutex>
#include <QWaitCondition>
#include <atomic>
#include <cerrno>

/// The system's own calls, except that reading and writing can be made to fail, and reading to hang as that of a
/// stalled share does.
class FaultyDisk : public SystemCalls {
public:
    int ReadFailure = 0; ///< errno value of every read from ReadsBeforeFailure on
    int ReadsBeforeFailure = 0;
    int WriteFailure = 0;               ///< errno value of every write
    std::int64_t LongestRead = 1 << 30; ///< reads return no more bytes than this
    int Interruptions = 0;              ///< so many reads are interrupted first
    std::atomic<std::int64_t> BytesRead = 0;

    /// After so many more reads, the next ones hang.
    void StallAfter(int reads) {
        const QMutexLocker guard(&lock);
        readsBeforeStall = reads;
    }
    /// Reads that hang come back, and no more will hang.
    void Recover() {
        const QMutexLocker guard(&lock);
        readsBeforeStall = -1;
        recovered.wakeAll();
    }
    /// Whether a read hangs now.
    bool IsStalled() {
        const QMutexLocker guard(&lock);
        return hanging > 0;
    }

    int Status(const NativePath& path, FileStatus& status) override { return real.Status(path, status); }
    int ReadLink(const NativePath& path, NativePath& target) override { return real.ReadLink(path, target); }
    int OpenForReading(const NativePath& path) override { return real.OpenForReading(path); }
    int OpenForWriting(const NativePath& path) override { return real.OpenForWriting(path); }
    int CreateExclusive(const NativePath& path, unsigned mode) override { return real.CreateExclusive(path, mode); }

    std::int64_t Read(int handle, char* buffer, std::int64_t size) override {
        HangWhileStalled();
        if (Interruptions > 0) {
            --Interruptions;
            return -EINTR;
        }
        if (ReadFailure != 0 && ReadsBeforeFailure-- <= 0) {
            return -ReadFailure;
        }
        const std::int64_t count = real.Read(handle, buffer, size < LongestRead ? size : LongestRead);
        BytesRead += count > 0 ? count : 0;
        return count;
    }
    std::int64_t Write(int handle, const char* bytes, std::int64_t size) override {
        return WriteFailure != 0 ? -WriteFailure : real.Write(handle, bytes, size);
    }

    std::int64_t Seek(int handle, std::int64_t position) override { return real.Seek(handle, position); }
    int Truncate(int handle, std::int64_t size) override { return real.Truncate(handle, size); }
    int SetMode(int handle, unsigned mode) override { return real.SetMode(handle, mode); }
    int SetOwner(int handle, unsigned owner, unsigned group) override { return real.SetOwner(handle, owner, group); }
    int Sync(int handle) override { return real.Sync(handle); }
    int Close(int handle) override { return real.Close(handle); }
    int Replace(const NativePath& source, const NativePath& target) override { return real.Replace(source, target); }
    int Remove(const NativePath& path) override { return real.Remove(path); }
    int SyncFolder(const NativePath& folder) override { return real.SyncFolder(folder); }
    int ListNames(const NativePath& folder, std::vector<NativePath>& names) override {
        return real.ListNames(folder, names);
    }
    std::int64_t ProcessNumber() override { return real.ProcessNumber(); }
    bool ProcessIsAlive(std::int64_t number) override { return real.ProcessIsAlive(number); }
    void Wait(int milliseconds) override { real.Wait(milliseconds); }

private:
    SystemCalls& real = RealSystemCalls();
    QMutex lock;
    QWaitCondition recovered;
    int readsBeforeStall = -1; // never
    int hanging = 0;

    void HangWhileStalled() {
        const QMutexLocker guard(&lock);
        ++hanging;
        while (readsBeforeStall == 0) {
            recovered.wait(&lock);
        }
        --hanging;
        readsBeforeStall -= readsBeforeStall > 0 ? 1 : 0;
    }
};
