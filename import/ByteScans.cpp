#include "import/ByteScans.h"

#include <array>

// Compiled with the optimiser's loop vectoriser. On processors that have them, vectors of twice the usual size are
// used; GCC 12 fails on them together with AddressSanitizer.
#if defined(__linux__) && defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__)
#define ALWAYS_INLINE inline __attribute__((always_inline))
#define WIDE_VECTORS __attribute__((target("avx2")))
#else
#define ALWAYS_INLINE inline
#define WIDE_VECTORS
#endif

namespace {

constexpr std::int64_t Lanes = 64;
constexpr std::int64_t Rounds = 64; // so that no lane passes 255
constexpr std::int64_t Block = Lanes * Rounds;

ALWAYS_INLINE std::uint8_t EndsLine(char byte, char before) {
    const auto isFeed = static_cast<std::uint8_t>(byte == '\n');
    const auto isReturn = static_cast<std::uint8_t>(byte == '\r');
    const auto afterReturn = static_cast<std::uint8_t>(before == '\r');
    return static_cast<std::uint8_t>(isReturn | (isFeed & (afterReturn ^ 1U)));
}

// `bytes` must have a byte in front of it.
ALWAYS_INLINE std::int64_t EndsInBlock(const char* bytes) {
    std::array<std::uint8_t, Lanes> lanes{};
    for (std::int64_t round = 0; round < Rounds; ++round) {
        const char* const row = bytes + round * Lanes;
        for (std::int64_t lane = 0; lane < Lanes; ++lane) {
            std::uint8_t& sum = lanes[static_cast<std::size_t>(lane)];
            sum = static_cast<std::uint8_t>(sum + EndsLine(row[lane], row[lane - 1]));
        }
    }
    std::int64_t sum = 0;
    for (const std::uint8_t lane : lanes) {
        sum += lane;
    }
    return sum;
}

ALWAYS_INLINE bool BlockIsAscii(const char* bytes) {
    unsigned char all = 0;
    for (std::int64_t place = 0; place < Block; ++place) {
        all = static_cast<unsigned char>(all | static_cast<unsigned char>(bytes[place]));
    }
    return all < 0x80;
}

struct Scans {
    std::int64_t (*EndsInBlock)(const char* bytes);
    bool (*BlockIsAscii)(const char* bytes);
};

std::int64_t EndsUsual(const char* bytes) { // not reached: only where vectors are narrow, and under the sanitizers
    return EndsInBlock(bytes);
}

bool AsciiUsual(const char* bytes) { // not reached: only where vectors are narrow, and under the sanitizers
    return BlockIsAscii(bytes);
}

WIDE_VECTORS std::int64_t EndsWide(const char* bytes) {
    return EndsInBlock(bytes);
}

WIDE_VECTORS bool AsciiWide(const char* bytes) {
    return BlockIsAscii(bytes);
}

const Scans& ScansOfThisProcessor() {
#if defined(__linux__) && defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__)
    static const bool hasWideVectors = __builtin_cpu_supports("avx2") != 0;
#else
    static const bool hasWideVectors = false;
#endif
    static const Scans scans = hasWideVectors ? Scans{EndsWide, AsciiWide} : Scans{EndsUsual, AsciiUsual};
    return scans;
}

} // namespace

std::int64_t AsciiAtStart(const char* bytes, std::int64_t size) {
    const Scans& scans = ScansOfThisProcessor();
    std::int64_t place = 0;
    while (size - place >= Block && scans.BlockIsAscii(bytes + place)) {
        place += Block;
    }
    return place;
}

std::int64_t CountLineEnds(const char* bytes, std::int64_t size, char before) {
    if (size == 0) {
        return 0;
    }
    const Scans& scans = ScansOfThisProcessor();
    std::int64_t ends = EndsLine(bytes[0], before);
    std::int64_t place = 1;
    for (; size - place >= Block; place += Block) {
        ends += scans.EndsInBlock(bytes + place);
    }
    for (; place < size; ++place) {
        ends += EndsLine(bytes[place], bytes[place - 1]);
    }
    return ends;
}
