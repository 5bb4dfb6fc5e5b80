#include "platform/SaveThread.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

namespace {

/// What the thread and its only caller share. Never destroyed: the thread waits on it when the program ends.
struct Worker {
    std::mutex lock;
    std::condition_variable changed;
    const std::function<void()>* save = nullptr; // what is being done; null between two saves

    void Run() {
        std::unique_lock guard(lock);
        for (;;) {
            changed.wait(guard, [this] { return save != nullptr; });
            guard.unlock();
            (*save)();
            guard.lock();
            save = nullptr;
            changed.notify_all();
        }
    }
};

/// Null where no thread can be had.
Worker* StartedWorker() {
    static Worker* const worker = []() -> Worker* {
        auto* const made = new Worker;
        try {
            std::thread([made] { made->Run(); }).detach();
        } catch (const std::system_error&) {
            delete made;
            return nullptr;
        }
        return made;
    }();
    return worker;
}

} // namespace

int SaveThread::alive = 0;

SaveThread::SaveThread(const std::function<void()>& save) {
    ++alive;
    Worker* const worker = StartedWorker();
    if (worker == nullptr) {
        save();
        return;
    }
    std::unique_lock guard(worker->lock);
    worker->changed.wait(guard, [worker] { return worker->save == nullptr; });
    worker->save = &save;
    worker->changed.notify_all();
}

bool SaveThread::Wait(int milliseconds) {
    Worker* const worker = StartedWorker();
    if (worker == nullptr) {
        return true;
    }
    std::unique_lock guard(worker->lock);
    return worker->changed.wait_for(guard, std::chrono::milliseconds(milliseconds),
                                    [worker] { return worker->save == nullptr; });
}
