#pragma once

#include <cstdint>
#include <string>

/// Measures the memory that this thread holds at most while it lives, beyond what it held before. Only one at a time.
/// It needs AddressSanitizer's allocator; without it nothing is measured.
class AllocationMeter {
public:
    AllocationMeter();
    ~AllocationMeter();
    AllocationMeter(const AllocationMeter&) = delete;
    AllocationMeter& operator=(const AllocationMeter&) = delete;

    /// Bytes; 0 when nothing is measured.
    std::int64_t Peak() const;

    /// A complaint when more was held than a fixed amount and `multiple` times the input's bytes; else empty.
    std::string Judge(std::size_t inputBytes, std::int64_t multiple) const;
};
