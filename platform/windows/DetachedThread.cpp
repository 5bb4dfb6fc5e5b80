#include "platform/DetachedThread.h"

#include <memory>
#include <process.h>
#include <utility>
#include <windows.h>

// Not std::thread: GCC's for Windows loses a thread now and then when another one ends just as it is detached.

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
