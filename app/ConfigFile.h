#pragma once

#include "app/ProgramConfig.h"
#include "platform/ItemText.h"

#include <QByteArray>

/// The program configuration file, bytes to record and back. The same bytes go into GW_v12_PRG.CFG and, for the
/// previous version of the gradebook, GW_v11_PRG.CFG.

inline constexpr char16_t OlderConfigFile[] = u"GW_v11_PRG.CFG";
inline constexpr char16_t NewerConfigFile[] = u"GW_v12_PRG.CFG";
inline constexpr char16_t PathFile[] = u"GdWlPath.cfg";

/// Reads the bytes into the record. Values before a fault stay, the rest keep what they held; after a fault ConfigLock
/// is 1. Returns the fault with its line, or none. A stored start month never survives: SchoolYearStartMonth becomes 1.
ItemError ReadConfigText(const QByteArray& bytes, ProgramConfigRecord& config);

/// Whether the file has more sections than this version knows, which a save would not write again.
bool HasLaterSections(const QByteArray& bytes);

/// The bytes of the file for the record. `titleLine` must hold no comma.
QByteArray WriteConfigText(const ProgramConfigRecord& config, const QString& titleLine);

/// Puts the defaults of the settings table, the default grade scheme and the printer font into ProgramConfig.
void SetDefaultSettings();

/// Chooses the file to read (the older one wins when both exist), sets ConfigFileName and calls ReadProgramConfig.
void LocateProgramConfig();

/// Reads ConfigFileName in ProgramFolder into ProgramConfig. Never shows a message; a file that could not be read to
/// its end is remembered, so that the first save keeps a copy of it.
void ReadProgramConfig();

/// Writes both configuration files from ProgramConfig and deletes GdWlPath.cfg. Each failure is shown in a message
/// box with its number; a failure of the older file does not stop the newer one.
void SaveProgramConfig();
