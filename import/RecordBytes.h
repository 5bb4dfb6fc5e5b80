#pragma once

#include <QByteArray>
#include <cstdint>

/// The bytes of a record wherever they are: in memory or in a file too large for it. Places count from 0.
class RecordBytes {
public:
    virtual ~RecordBytes() = default;

    /// The byte at a place.
    virtual char At(std::int64_t place) = 0;

    /// The first place of `byte` in [from, to); `to` when there is none.
    virtual std::int64_t Find(char byte, std::int64_t from, std::int64_t to) = 0;

    /// The first place in [from, to) that does not hold `byte`; `to` when there is none.
    std::int64_t FindOther(char byte, std::int64_t from, std::int64_t to);
};

/// Bytes in memory.
class BytesInMemory : public RecordBytes {
public:
    explicit BytesInMemory(QByteArray bytes);

    char At(std::int64_t place) override { return bytes.at(place); }
    std::int64_t Find(char byte, std::int64_t from, std::int64_t to) override;

private:
    QByteArray bytes;
};
