#include "platform/BackgroundWork.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace {

/// How much work goes on. Never destroyed: work may still go on when the program ends.
struct Running {
    std::mutex lock;
    std::condition_variable lessened;
    int count = 0;
};

Running& AllWork() {
    static auto* const running = new Running;
    return *running;
}

void CountWork(int change) {
    Running& running = AllWork();
    const std::lock_guard guard(running.lock);
    running.count += change;
    running.lessened.notify_all();
}

} // namespace

struct BackgroundWork::State {
    std::mutex lock;
    std::condition_variable ended;
    bool hasEnded = false;

    void Do(std::function<void()> work) {
        work();
        work = nullptr; // what it owned goes before anybody is told
        const std::lock_guard guard(lock);
        hasEnded = true;
        ended.notify_all();
    }
};

BackgroundWork::BackgroundWork(std::function<void()> work) : state(std::make_shared<State>()) {
    CountWork(1);
    try {
        std::thread([kept = state, work]() mutable {
            kept->Do(std::exchange(work, nullptr));
            kept.reset();
            CountWork(-1);
        }).detach();
    } catch (const std::system_error&) {
        state->Do(std::move(work));
        CountWork(-1);
    }
}

bool BackgroundWork::Wait(int milliseconds) const {
    std::unique_lock guard(state->lock);
    return state->ended.wait_for(guard, std::chrono::milliseconds(milliseconds), [this] { return state->hasEnded; });
}

void AwaitBackgroundWork() {
    Running& running = AllWork();
    std::unique_lock guard(running.lock);
    running.lessened.wait(guard, [&] { return running.count == 0; });
}
