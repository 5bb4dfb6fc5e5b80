#pragma once

#include "transfer/TransferFile.h"

#include <QString>
#include <QStringList>
#include <cstdint>

/// The student information systems (SIS) that the Transfer Program knows, by the number that its file stores.

inline constexpr std::int16_t WindsorHarts = 10; ///< the system with a work habits list and no choice of board

/// The name of a number from 1 to 22; empty for any other.
QString SystemName(std::int16_t number);

/// The names in the order of the list. Five numbers keep their names but are no longer offered.
QStringList OfferedSystems();

/// The number at a list position (from 0); 0 when there is none.
std::int16_t SystemNumberAt(int position);

/// The list position (from 0) of a number; -1 when it is not offered.
int PositionOfSystem(std::int16_t number);

/// The last line of the file: system, separator and board as the lists show them; the system alone for Windsor-Harts.
QString StoredSystemName(std::int16_t number, const QString& system, const QString& separator, const QString& board);
