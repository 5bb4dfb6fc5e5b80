#pragma once

#include <QByteArray>
#include <span>

/// The program's readers alone, for measuring how their time grows with the file.
struct TimedReader {
    const char* Name;
    void (*Read)(const QByteArray& bytes);
};

std::span<const TimedReader> TimedReaders();

/// The processor time in seconds that the reader takes for the bytes: the least of three runs.
double ReadingTime(const TimedReader& reader, const QByteArray& bytes);
