#include "tests/support/FaultyCalls.h"

#include <algorithm>
#include <string>

void FaultyCalls::FailCall(int number, int error, Repeat repeat) {
    failedCall = number;
    callError = error;
    callRepeat = repeat;
}

void FaultyCalls::ShortenCall(int number, Repeat repeat) {
    shortCall = number;
    shortRepeat = repeat;
}

void FaultyCalls::FailAll(Kind kind, int error) {
    kindFaults.push_back({kind, error, -1});
}

void FaultyCalls::FailFirst(Kind kind, int error, int times) {
    kindFaults.push_back({kind, error, times});
}

void FaultyCalls::FailAfterwards(Kind kind, int error) {
    afterFaults.push_back({kind, error, -1});
}

int FaultyCalls::CountOf(Kind kind) const {
    return static_cast<int>(std::count(Made.begin(), Made.end(), kind));
}

bool FaultyCalls::HasFailed(Kind kind) const {
    return std::count(Failed.begin(), Failed.end(), kind) > 0;
}

// Counts the call; the error that it is to fail with, or 0.
int FaultyCalls::FaultOf(Kind kind) {
    Made.push_back(kind);
    const bool hit = callRepeat == Repeat::Once ? Count() == failedCall : Count() >= failedCall;
    int error = failedCall > 0 && hit ? callError : 0;
    for (KindFault& fault : kindFaults) {
        if (error == 0 && fault.kind == kind && fault.times != 0) {
            error = fault.error;
            --fault.times;
        }
    }
    if (error != 0) {
        Failed.push_back(kind);
    }
    return error;
}

template <typename Result, typename Call>
Result FaultyCalls::Do(Kind kind, Call call) {
    if (Before) {
        Before(kind);
    }
    if (killedAt > 0 && Count() + 1 >= killedAt) {
        throw Killed();
    }
    if (const int error = FaultOf(kind)) {
        return static_cast<Result>(-error);
    }
    const Result result = call();
    for (const KindFault& fault : afterFaults) {
        if (fault.kind == kind) {
            Failed.push_back(kind);
            return static_cast<Result>(-fault.error);
        }
    }
    return result;
}

int FaultyCalls::Opened(Kind kind, const std::function<int()>& open) {
    const int handle = Do<int>(kind, open);
    OpenHandles += handle >= 0 ? 1 : 0;
    return handle;
}

int FaultyCalls::Status(const NativePath& path, FileStatus& status) {
    return Do<int>(Kind::Status, [&] { return real->Status(path, status); });
}

int FaultyCalls::ReadLink(const NativePath& path, NativePath& target) {
    return Do<int>(Kind::ReadLink, [&] { return real->ReadLink(path, target); });
}

int FaultyCalls::OpenForReading(const NativePath& path) {
    return Opened(Kind::OpenForReading, [&] { return real->OpenForReading(path); });
}

int FaultyCalls::OpenForWriting(const NativePath& path) {
    return Opened(Kind::OpenForWriting, [&] { return real->OpenForWriting(path); });
}

int FaultyCalls::CreateExclusive(const NativePath& path, unsigned mode) {
    return Opened(Kind::CreateExclusive, [&] { return real->CreateExclusive(path, mode); });
}

std::int64_t FaultyCalls::Read(int handle, char* buffer, std::int64_t size) {
    const std::int64_t most = MostBytesARead > 0 ? std::min<std::int64_t>(size, MostBytesARead) : size;
    return Do<std::int64_t>(Kind::Read, [&] { return real->Read(handle, buffer, most); });
}

std::int64_t FaultyCalls::Write(int handle, const char* bytes, std::int64_t size) {
    std::int64_t most = MostBytesAWrite > 0 ? std::min<std::int64_t>(size, MostBytesAWrite) : size;
    const int number = Count() + 1;
    if (shortCall > 0 && (shortRepeat == Repeat::Once ? number == shortCall : number >= shortCall)) {
        most = (most + 1) / 2;
    }
    const std::string spoilt(static_cast<std::size_t>(most), '~');
    return Do<std::int64_t>(Kind::Write, [&] {
        return WritesTakeNothing ? 0 : real->Write(handle, SpoilsWrites ? spoilt.data() : bytes, most);
    });
}

std::int64_t FaultyCalls::Seek(int handle, std::int64_t position) {
    return Do<std::int64_t>(Kind::Seek, [&] { return real->Seek(handle, position); });
}

int FaultyCalls::Truncate(int handle, std::int64_t size) {
    return Do<int>(Kind::Truncate, [&] { return real->Truncate(handle, size); });
}

int FaultyCalls::SetMode(int handle, unsigned mode) {
    return Do<int>(Kind::SetMode, [&] { return real->SetMode(handle, mode); });
}

int FaultyCalls::SetOwner(int handle, unsigned owner, unsigned group) {
    return Do<int>(Kind::SetOwner, [&] { return real->SetOwner(handle, owner, group); });
}

int FaultyCalls::Sync(int) {
    return Do<int>(Kind::Sync, [] { return 0; });
}

int FaultyCalls::Close(int handle) {
    const int closed = real->Close(handle);
    --OpenHandles;
    if (killedAt > 0 && Count() + 1 >= killedAt) {
        return closed; // the system closes a killed run's files; nothing may be thrown while they go out of scope
    }
    return Do<int>(Kind::Close, [&] { return closed; });
}

int FaultyCalls::Replace(const NativePath& source, const NativePath& target) {
    return Do<int>(Kind::Replace, [&] { return real->Replace(source, target); });
}

int FaultyCalls::Remove(const NativePath& path) {
    return Do<int>(Kind::Remove, [&] { return real->Remove(path); });
}

int FaultyCalls::SyncFolder(const NativePath&) {
    return Do<int>(Kind::SyncFolder, [] { return 0; });
}

int FaultyCalls::ListNames(const NativePath& folder, std::vector<NativePath>& names) {
    return Do<int>(Kind::ListNames, [&] { return real->ListNames(folder, names); });
}

std::int64_t FaultyCalls::ProcessNumber() {
    return Number > 0 ? Number : real->ProcessNumber();
}

bool FaultyCalls::ProcessIsAlive(std::int64_t number) {
    return AliveRuns ? AliveRuns(number) : real->ProcessIsAlive(number);
}
