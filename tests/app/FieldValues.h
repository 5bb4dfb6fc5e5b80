#pragma once

#include "app/SettingsTable.h"

#include <functional>
#include <iosfwd>

/// Calls `text` or `number` for every stored value of the record, each index of an array by itself.
void ForEachValue(ProgramConfigRecord& config, const std::function<void(const char* name, QString& value)>& text,
                  const std::function<void(const char* name, std::int16_t& value)>& number);

/// The record with every default; ProgramConfig stays as it is.
ProgramConfigRecord DefaultRecord();

/// What a failed comparison prints.
void PrintTo(const ProgramConfigRecord& config, std::ostream* stream);

/// The record that tests/data/app/every-field.cfg describes: a distinct value in every field.
ProgramConfigRecord EveryField();
