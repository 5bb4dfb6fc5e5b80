#pragma once

#include <functional>
#include <memory>

/// Work in a thread of its own, for calls of the system that may hang, as those to a stalled share do. Nobody has to
/// wait for its end: when this object goes, work that still goes on is left to itself. So the work must own all that
/// it touches, except what lives as long as the program.
class BackgroundWork {
public:
    /// Starts the work; where no thread can be had, does it at once.
    explicit BackgroundWork(std::function<void()> work);

    /// Waits for the end of the work, at most so many milliseconds, and tells whether it has ended. What it wrote can
    /// then be read.
    bool Wait(int milliseconds) const;

private:
    struct State;
    std::shared_ptr<State> state;
};

/// Waits until all work has ended, also work that was left to itself.
void AwaitBackgroundWork();
