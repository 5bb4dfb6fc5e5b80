#include "tests/fuzz/Targets.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>

/// The entry that libFuzzer calls. FUZZ_TARGET names the target that this program is for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string complaint = FUZZ_TARGET(std::string(reinterpret_cast<const char*>(data), size));
    if (!complaint.empty()) {
        std::cerr << complaint << '\n';
        std::abort();
    }
    return 0;
}
