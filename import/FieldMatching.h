#pragma once

#include "import/FieldList.h"
#include "import/SetupFile.h"

#include <array>

/// Which fields of the list are matched to which rows of the preview: row k (from 1) holds the k-th match. Rows are
/// matched one after another, and a field can be used once, except "Ignore this field".
class FieldMatching {
public:
    explicit FieldMatching(FieldList fields = EnglishFieldList());

    const FieldList& Fields() const { return fields; }
    int DobFormat() const { return dobFormat; }
    int MatchCount() const { return matchCount; }
    int RowCount() const { return rowCount; }

    /// The name matched to row 1 to RowCount(); empty for a row without one.
    QString Name(int row) const;
    /// The caption of a field while the birth date has its present format.
    QString Caption(int field) const { return fields.Caption(field, dobFormat); }
    bool IsUsed(int field) const { return used[static_cast<std::size_t>(field)]; }
    /// Whether a match name (1 to MatchCount()) is the caption of the field.
    bool HasMatch(int field) const;

    /// The number of rows, 0 to 24; more matches than rows are never made.
    void SetRowCount(int rows);

    /// A field was pressed. "Import If #2" chooses #1 while that one is free. Returns the field chosen.
    int Choose(int field);
    int Chosen() const { return chosen; }
    void ForgetChosen() { chosen = 0; }

    /// Matches the chosen field to the next row; false when no row is left, no field is chosen or it is used.
    bool MatchChosen();

    /// The chosen field was dropped on the preview: matches it and forgets it.
    bool Drop();

    /// Undoes the last match; false when there is none.
    bool ClearLast();
    void ClearAll();

    /// Another birth date format; names that begin with the prefix take the new caption.
    void SetDobFormat(int format);

    /// Shows the matches of a setup: entry 0 is the DOB format code, entries 1 to `count` the names.
    void ShowStored(const MatchList& matches, int count);

private:
    FieldList fields;
    std::array<bool, FieldCount + 1> used{};
    MatchList names; // entry 0 is unused
    int matchCount = 0;
    int rowCount = 0;
    int dobFormat = 0;
    int chosen = 0;

    void MarkUsed(const QString& name);
};
