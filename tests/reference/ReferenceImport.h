#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// The import setup file, the records of a student data file and the course code rule, read a second way. Texts are the
/// files' bytes.

struct ReferenceRecord {
    char Separator = '\0';
    std::vector<std::string> Fields;
};

/// Takes a record apart. Fields are not cut.
ReferenceRecord ReferenceSplit(std::string line);

struct ReferenceSetup {
    std::int16_t ActiveFields = 0;
    std::array<std::string, 25> Matches;
    std::array<std::int16_t, 4> Actions{};
    std::array<std::int16_t, 12> Fields{};

    friend bool operator==(const ReferenceSetup&, const ReferenceSetup&) = default;
};

/// Reads over what `setup` holds; false at a number beyond 16 bits.
bool ReferenceReadSetup(const std::string& bytes, ReferenceSetup& setup);

/// Checks the match list against the English field list; returns title and text of each message.
std::vector<std::pair<std::string, std::string>> ReferenceCheckMatches(ReferenceSetup& setup);

std::string ReferenceWriteSetup(const ReferenceSetup& setup);

/// Starts and lengths of course, section and grade as the Admin window lists them.
struct ReferenceRules {
    std::array<int, 6> Numbers{}; ///< course start, course length, section start and length, grade start and length
    bool BySplitText = false;
    std::string SplitText;
    bool Convert = false;
    std::vector<std::pair<std::string, std::string>> Rows;
};

/// Course, section and grade.
std::array<std::string, 3> ReferenceSplitCode(const std::string& code, const ReferenceRules& rules);
