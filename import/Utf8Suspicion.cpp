#include "import/Utf8Suspicion.h"

#include "import/ByteScans.h"

#include <array>

namespace {

constexpr std::array<unsigned char, 3> ByteOrderMark = {0xEF, 0xBB, 0xBF};
constexpr int EnoughCharacters = 1000;
constexpr std::int64_t BlockStep = 4096; // bytes looked at singly before blocks are tried again
constexpr unsigned char LowestTrailing = 0x80;
constexpr unsigned char HighestTrailing = 0xBF;

} // namespace

void Utf8Suspicion::Add(const char* bytes, std::int64_t size) {
    std::int64_t place = 0;
    while (place < size && judgement == Judgement::Open) {
        if (missing == 0 && place % BlockStep == 0) {
            place += AsciiAtStart(bytes + place, size - place);
            if (place == size) {
                break;
            }
        }
        const auto byte = static_cast<unsigned char>(bytes[place]);
        if (before + place == markBytes && markBytes < 3 &&
            byte == ByteOrderMark[static_cast<std::size_t>(markBytes)]) {
            ++markBytes;
            judgement = markBytes == 3 ? Judgement::Utf8 : judgement;
        }
        AddByte(byte);
        ++place;
    }
    before += size;
}

bool Utf8Suspicion::Suspected() const {
    return judgement == Judgement::Utf8 || (judgement == Judgement::Open && characters > 0 && missing == 0);
}

void Utf8Suspicion::AddByte(unsigned char byte) {
    if (missing > 0) {
        if (byte < lowestNext || byte > highestNext) {
            judgement = Judgement::OtherText;
            return;
        }
        lowestNext = LowestTrailing;
        highestNext = HighestTrailing;
        if (--missing == 0 && ++characters == EnoughCharacters) {
            judgement = Judgement::Utf8;
        }
    } else if (byte >= 0x80 && !Begin(byte)) {
        judgement = Judgement::OtherText;
    }
}

// Only the shortest form of a character is valid, and none of the surrogates or beyond U+10FFFF.
bool Utf8Suspicion::Begin(unsigned char byte) {
    lowestNext = LowestTrailing;
    highestNext = HighestTrailing;
    if (byte >= 0xC2 && byte <= 0xDF) {
        missing = 1;
    } else if (byte >= 0xE0 && byte <= 0xEF) {
        missing = 2;
        lowestNext = byte == 0xE0 ? 0xA0 : LowestTrailing;
        highestNext = byte == 0xED ? 0x9F : HighestTrailing;
    } else if (byte >= 0xF0 && byte <= 0xF4) {
        missing = 3;
        lowestNext = byte == 0xF0 ? 0x90 : LowestTrailing;
        highestNext = byte == 0xF4 ? 0x8F : HighestTrailing;
    }
    return missing > 0;
}
