#include "import/LineIndex.h"

#include <algorithm>
#include <array>

// Compiled with the optimiser's loop vectoriser: a large file is counted about as fast as it can be read.

namespace {

constexpr std::int64_t Lanes = 64;
constexpr std::int64_t Rounds = 64; // so that no lane passes 255
constexpr std::int64_t Block = Lanes * Rounds;

inline std::uint8_t EndsLine(char byte, char before) {
    const auto isFeed = static_cast<std::uint8_t>(byte == '\n');
    const auto isReturn = static_cast<std::uint8_t>(byte == '\r');
    const auto afterReturn = static_cast<std::uint8_t>(before == '\r');
    return static_cast<std::uint8_t>(isReturn | (isFeed & (afterReturn ^ 1U)));
}

// `bytes` must have a byte in front of it.
std::int64_t CountBlock(const char* bytes) {
    std::array<std::uint8_t, Lanes> lanes{};
    for (std::int64_t round = 0; round < Rounds; ++round) {
        const char* const row = bytes + round * Lanes;
        for (std::size_t lane = 0; lane < Lanes; ++lane) {
            lanes[lane] = static_cast<std::uint8_t>(lanes[lane] + EndsLine(row[lane], row[lane - 1]));
        }
    }
    std::int64_t sum = 0;
    for (const std::uint8_t lane : lanes) {
        sum += lane;
    }
    return sum;
}

} // namespace

std::int64_t CountLineEnds(const char* bytes, std::int64_t size, char before) {
    if (size == 0) {
        return 0;
    }
    std::int64_t ends = EndsLine(bytes[0], before);
    std::int64_t place = 1;
    for (; size - place >= Block; place += Block) {
        ends += CountBlock(bytes + place);
    }
    for (; place < size; ++place) {
        ends += EndsLine(bytes[place], bytes[place - 1]);
    }
    return ends;
}
