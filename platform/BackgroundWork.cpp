#include "platform/BackgroundWork.h"

#include "platform/DetachedThread.h"

#include <QDeadlineTimer>
#include <QMutex>
#include <QWaitCondition>
#include <utility>

namespace {

/// How much work goes on. Never destroyed: work may still go on when the program ends.
struct Running {
    QMutex lock;
    QWaitCondition lessened;
    int count = 0;
};

Running& AllWork() {
    static auto* const running = new Running;
    return *running;
}

void CountWork(int change) {
    Running& running = AllWork();
    const QMutexLocker guard(&running.lock);
    running.count += change;
    running.lessened.wakeAll();
}

} // namespace

struct BackgroundWork::State {
    QMutex lock;
    QWaitCondition ended;
    bool hasEnded = false;

    void Do(std::function<void()> work) {
        work();
        work = nullptr; // what it owned goes before anybody is told
        const QMutexLocker guard(&lock);
        hasEnded = true;
        ended.wakeAll();
    }
};

BackgroundWork::BackgroundWork(std::function<void()> work) : state(std::make_shared<State>()) {
    CountWork(1);
    const bool started = StartDetachedThread([kept = state, work]() mutable {
        kept->Do(std::exchange(work, nullptr));
        kept.reset();
        CountWork(-1);
    });
    if (!started) {
        state->Do(std::move(work));
        CountWork(-1);
    }
}

bool BackgroundWork::Wait(int milliseconds) const {
    const QDeadlineTimer deadline(milliseconds);
    const QMutexLocker guard(&state->lock);
    while (!state->hasEnded && state->ended.wait(&state->lock, deadline)) {
    }
    return state->hasEnded;
}

void AwaitBackgroundWork() {
    Running& running = AllWork();
    const QMutexLocker guard(&running.lock);
    while (running.count > 0) {
        running.lessened.wait(&running.lock);
    }
}
