#pragma once

#include <functional>

/// A save in a thread of its own. All saves share one thread, which waits for the next save in between: to wake it
/// costs a fast save less than to start one. A save that hangs keeps the thread; there is never more than one at a
/// time.
class SaveThread {
public:
    /// Starts the save, after the one that may still run; where no thread can be had, does it at once.
    explicit SaveThread(const std::function<void()>& save);
    ~SaveThread() { --alive; }
    SaveThread(const SaveThread&) = delete;
    SaveThread& operator=(const SaveThread&) = delete;

    /// Waits for the end of the save, at most so many milliseconds, and tells whether it has ended. What it wrote can
    /// then be read. The save uses what the caller owns, so it must be waited for to its end.
    bool Wait(int milliseconds);

    /// Whether there is a save that somebody waits for.
    static bool IsBusy() { return alive > 0; }

private:
    static int alive;
};
