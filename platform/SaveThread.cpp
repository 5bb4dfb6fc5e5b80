#include "platform/SaveThread.h"

#include "platform/DetachedThread.h"

#include <QDeadlineTimer>
#include <QMutex>
#include <QWaitCondition>

namespace {

/// What the thread and its only caller share. Never destroyed: the thread waits on it when the program ends.
struct Worker {
    QMutex lock;
    QWaitCondition changed;
    const std::function<void()>* save = nullptr; // what is being done; null between two saves

    void Run() {
        QMutexLocker guard(&lock);
        for (;;) {
            while (save == nullptr) {
                changed.wait(&lock);
            }
            guard.unlock();
            (*save)();
            guard.relock();
            save = nullptr;
            changed.wakeAll();
        }
    }
};

/// Null where no thread can be had.
Worker* StartedWorker() {
    static Worker* const worker = []() -> Worker* {
        auto* const made = new Worker;
        if (StartDetachedThread([made] { made->Run(); })) {
            return made;
        }
        delete made;
        return nullptr;
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
    const QMutexLocker guard(&worker->lock);
    while (worker->save != nullptr) {
        worker->changed.wait(&worker->lock);
    }
    worker->save = &save;
    worker->changed.wakeAll();
}

bool SaveThread::Wait(int milliseconds) {
    Worker* const worker = StartedWorker();
    if (worker == nullptr) {
        return true;
    }
    const QDeadlineTimer deadline(milliseconds);
    const QMutexLocker guard(&worker->lock);
    while (worker->save != nullptr && worker->changed.wait(&worker->lock, deadline)) {
    }
    return worker->save == nullptr;
}
