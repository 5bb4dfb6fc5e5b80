#pragma once

#include "platform/ItemText.h"

#include <QByteArray>
#include <QString>
#include <cstdint>

/// The Transfer Program's configuration file, bytes to values and back.

inline constexpr std::int16_t HighestBoardType = 3; ///< Catholic secondary
inline constexpr std::int16_t HighestSystemNumber = 22;

/// What the file holds. `TransferLock` is a value of its own, apart from the lock of the program configuration file.
struct TransferSettings {
    std::int16_t TransferLock = 0; ///< 1: teachers may not change these defaults
    QString ReportPath;            ///< default report card folder; may be empty
    std::int16_t BoardType = 0;    ///< 0 and 1 elementary, 2 and 3 secondary; even ones public, odd ones Catholic
    std::int16_t SystemNumber = 0; ///< 1 to 22; 0 when none is chosen

    friend bool operator==(const TransferSettings&, const TransferSettings&) = default;
};

/// Reads the file, of today's layout or of the older one without a report folder (its fourth field lacks the word
/// REPORT). A board type above 3 becomes 0 (a negative one is kept), a system number outside 1 to 22 becomes 1. After a
/// fault the lock is 1, what was read before it stays and the rest keeps what it held. Returns the fault with its line.
ItemError ReadTransferText(const QByteArray& bytes, TransferSettings& settings);

/// The fourteen lines of the file. `systemName` is the text of the last line; the version text stands without brackets.
QByteArray WriteTransferText(const TransferSettings& settings, const QString& titleLine, const QString& versionText,
                             const QString& systemName);
