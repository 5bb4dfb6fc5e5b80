#include "platform/DetachedThread.h"

#include <system_error>
#include <thread>
#include <utility>

bool StartDetachedThread(std::function<void()> work) {
    try {
        std::thread(std::move(work)).detach();
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}
