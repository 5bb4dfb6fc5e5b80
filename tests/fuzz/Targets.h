#pragma once

#include <span>
#include <string>

/// What hostile bytes are given to. Each target reads the bytes as one kind of file or typed text and checks what has
/// to hold whatever they are: the same result as the second reading of the rules in tests/reference, the same values
/// after a write and another read, and no more memory than a small multiple of the input. It returns what is wrong, or
/// an empty text.
struct FuzzTarget {
    const char* Name; ///< also the folder of its inputs in tests/data/fuzz
    std::string (*Run)(const std::string& bytes);
};

std::span<const FuzzTarget> FuzzTargets();

std::string FuzzConfigFile(const std::string& bytes);
std::string FuzzQuotedLines(const std::string& bytes);
std::string FuzzSchemeFile(const std::string& bytes);
std::string FuzzTransferFile(const std::string& bytes);
std::string FuzzSetupFile(const std::string& bytes);
std::string FuzzRecordSplitter(const std::string& bytes);
std::string FuzzLineFinder(const std::string& bytes);
std::string FuzzCourseCodeRule(const std::string& bytes);
std::string FuzzInputChecks(const std::string& bytes);
std::string FuzzDrivesConf(const std::string& bytes);
