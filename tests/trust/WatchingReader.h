#pragma once

#include "platform/SystemCalls.h"

#include <QByteArray>
#include <string>
#include <sys/types.h>
#include <vector>

/// A process that opens files over and over, as the teachers' programs do, and compares what it reads with the whole
/// contents that each of them may have.
class WatchingReader {
public:
    struct Watched {
        NativePath Path;
        std::vector<QByteArray> Contents;
    };
    explicit WatchingReader(std::vector<Watched> files);
    ~WatchingReader();
    WatchingReader(const WatchingReader&) = delete;
    WatchingReader& operator=(const WatchingReader&) = delete;

    /// How often a file was read so far.
    long Reads() const;
    /// How often it was missing or not whole, and what was read the first time.
    long Partial() const;
    std::string FirstPartial() const;

private:
    struct Shared;
    Shared* shared;
    pid_t process;
};

/// Makes temporary folders in memory from now on, where that can be: a save takes its calls' time there, not the
/// disk's.
void UseMemoryFolders();

/// For a child that runs until it is killed: it does not outlive its parent.
void EndWithParent();

/// A moment that nobody can foresee, from 0 to that many microseconds.
void SleepRandomly(int mostMicroseconds);

/// The number of kills that the environment asks for in GRADEWELL_KILLS, or the usual one.
int KillsAskedFor(int usual);
