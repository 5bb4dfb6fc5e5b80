#include "platform/DetachedThread.h"

#include <memory>
#include <process.h>
#include <utility>
#include <windows.h>

// Not std::thread: where GCC builds for Windows, now and then one of many short threads is never run
// (BackgroundWorkTest.LosesNoWorkHoweverShort shows it). Its mutexes and conditions keep the same books about threads,
// so those who wait for one another here do it with Qt's.

namespace {

using Work = std::function<void()>;

unsigned __stdcall Run(void* given) {
    const std::unique_ptr<Work> work(static_cast<Work*>(given));
    (*work)();
    return 0;
}

} // namespace

bool StartDetachedThread(std::function<void()> work) {
    auto given = std::make_unique<Work>(std::move(work));
    const auto thread = reinterpret_cast<HANDLE>(_beginthreadex(nullptr, 0, Run, given.get(), 0, nullptr));
    if (thread == nullptr) {
        return false;
    }
    static_cast<void>(given.release()); // the thread's own from now on
    CloseHandle(thread);
    return true;
}
