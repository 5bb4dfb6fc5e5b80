#include "tests/fuzz/AllocationMeter.h"

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
#define GRADEWELL_MEASURES_MEMORY
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define GRADEWELL_MEASURES_MEMORY
#endif
#endif

namespace {

constexpr std::int64_t FixedAmount = std::int64_t{16} * 1024; // what a reader may hold for an empty input

thread_local bool measuring = false;
thread_local std::int64_t held = 0;
thread_local std::int64_t peak = 0;

} // namespace

#ifdef GRADEWELL_MEASURES_MEMORY
// AddressSanitizer's own functions. GCC has them in its library, but Debian leaves out the header.
extern "C" {
int __sanitizer_install_malloc_and_free_hooks(void (*taken)(const volatile void* block, std::size_t size),
                                              void (*given)(const volatile void* block));
std::size_t __sanitizer_get_allocated_size(const volatile void* block);
}

namespace {

void Taken(const volatile void* /*block*/, std::size_t size) {
    if (measuring) {
        held += static_cast<std::int64_t>(size);
        peak = held > peak ? held : peak;
    }
}

void Given(const volatile void* block) {
    if (measuring && block != nullptr) {
        held -= static_cast<std::int64_t>(__sanitizer_get_allocated_size(block));
    }
}

} // namespace
#endif

AllocationMeter::AllocationMeter() {
#ifdef GRADEWELL_MEASURES_MEMORY
    static const int installed = __sanitizer_install_malloc_and_free_hooks(Taken, Given);
    static_cast<void>(installed);
#endif
    held = 0;
    peak = 0;
    measuring = true;
}

AllocationMeter::~AllocationMeter() {
    measuring = false;
}

std::int64_t AllocationMeter::Peak() const {
    return peak;
}

std::string AllocationMeter::Judge(std::size_t inputBytes, std::int64_t multiple) const {
    const std::int64_t allowed = FixedAmount + multiple * static_cast<std::int64_t>(inputBytes);
    if (peak <= allowed) {
        return {};
    }
    return "held " + std::to_string(peak) + " bytes for an input of " + std::to_string(inputBytes);
}
