#pragma once

#include "import/FieldList.h"

#include <QByteArray>
#include <QString>
#include <array>
#include <cstdint>
#include <vector>

/// The setup file beside a student data file: which column holds which field, which actions an update takes and which
/// fields it overwrites. Plain text, one item a line, lines ended CR LF.

inline constexpr int MatchLimit = 24;
inline constexpr int UpdateActionCount = 4;
inline constexpr int UpdateFieldCount = 12;

/// The match list: entry 0 is the DOB format code (never in the setup file), entry k the field of column k.
using MatchList = std::array<QString, MatchLimit + 1>;

/// What an update does (add new names, re-activate, delete missing names, confirm deletions) and which fields it
/// overwrites, in the order of the file's lines; 1 is yes.
struct UpdateOptions {
    std::array<std::int16_t, UpdateActionCount> Actions{};
    std::array<std::int16_t, UpdateFieldCount> Fields{};

    friend bool operator==(const UpdateOptions&, const UpdateOptions&) = default;
};

struct ImportSetup {
    std::int16_t ActiveFields = 0; ///< how many leading columns have a match
    MatchList Matches;
    UpdateOptions Options;
};

/// A fault of a setup file, as its message box shows it.
struct SetupFault {
    QString Title;
    QString Text;
};

/// The update options of the run: the last ones read or saved. The configuration file does not hold them.
extern UpdateOptions ImportUpdateOptions;

/// The bytes of the setup file; the DOB format code is not part of it.
QByteArray WriteSetup(const ImportSetup& setup);

/// Takes over the lines of a setup file; keys count without regard to case, the order does not matter, a later line
/// wins, lines with unknown keys are skipped. What no line names stays as it was. Returns false at a number that does
/// not fit 16 bits: the lines before it are taken over, the rest is not.
bool ReadSetup(const QByteArray& bytes, ImportSetup& setup);

/// Checks the count and the entries 1 to ActiveFields: trims them, gives them the list's spelling, replaces a bad one
/// by "Ignore this field", and sets entry 0 to the code of the last birth date format. Returns the faults in the order
/// in which they are shown. After a count outside 0 to 24 the count is 0 and the whole list empty.
std::vector<SetupFault> CheckMatches(ImportSetup& setup, const FieldList& fields);

/// Every value that is not 0 or 1 becomes 0.
void KeepYesOrNo(UpdateOptions& options);

/// The setup file beside an import file: its folder and `name`. Empty when the path has no backslash after its first
/// character; then nothing is written or deleted.
QString SetupFileBeside(const QString& importPath, const QString& name);
