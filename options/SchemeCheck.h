#pragma once

#include "options/SchemeFile.h"

#include <set>

/// What the check of a scheme found: the report (English in both editions, empty when all is well) and the fields that
/// a problem names, by position.
struct SchemeProblems {
    QString Report;
    std::set<int> Symbols;
    std::set<int> Values;
};

/// Checks the pairs in three passes: missing entries, symbols that occur twice (case does not count) and values that do
/// not rise. Positions in the report are counted from 1.
SchemeProblems CheckScheme(const std::vector<SchemePair>& pairs);

/// The label of the lowest symbol for the text of the second position's value: "For 0 to 49.9% use:" or
/// "Pour 0 à 49,9% utiliser :".
QString LowestSymbolText(const QString& secondValue, bool french);

/// The same label when no value is known.
QString LowestSymbolUnknownText(bool french);
