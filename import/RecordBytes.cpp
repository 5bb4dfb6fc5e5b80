#include "import/RecordBytes.h"

#include <utility>

std::int64_t RecordBytes::FindOther(char byte, std::int64_t from, std::int64_t to) {
    while (from < to && At(from) == byte) {
        ++from;
    }
    return from;
}

BytesInMemory::BytesInMemory(QByteArray bytesToUse) : bytes(std::move(bytesToUse)) {}

std::int64_t BytesInMemory::Find(char byte, std::int64_t from, std::int64_t to) {
    const qsizetype found = bytes.indexOf(byte, from);
    return found < 0 || found >= to ? to : found;
}
