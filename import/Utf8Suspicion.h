#pragma once

#include <cstdint>

/// Whether a file, given piece by piece, looks like UTF-8: it begins with a byte order mark, or it holds characters of
/// several bytes and nothing but valid ones. Enough of them settle the question, so the rest costs nothing.
class Utf8Suspicion {
public:
    void Add(const char* bytes, std::int64_t size);

    /// The judgement on the bytes given so far, which end here.
    bool Suspected() const;

private:
    enum class Judgement { Open, Utf8, OtherText };

    Judgement judgement = Judgement::Open;
    std::int64_t before = 0;      // bytes given so far
    int characters = 0;           // valid ones of several bytes
    int missing = 0;              // bytes that the character begun still needs
    unsigned char lowestNext = 0; // range of its next byte
    unsigned char highestNext = 0;
    int markBytes = 0; // of the byte order mark seen so far

    void AddByte(unsigned char byte);
    bool Begin(unsigned char byte);
};
