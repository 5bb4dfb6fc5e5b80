#include "tests/fuzz/Targets.h"

std::span<const FuzzTarget> FuzzTargets() {
    static constexpr FuzzTarget targets[] = {
        {"config", FuzzConfigFile}, {"quoted", FuzzQuotedLines},
        {"scheme", FuzzSchemeFile}, {"transfer", FuzzTransferFile},
        {"setup", FuzzSetupFile},   {"record", FuzzRecordSplitter},
        {"lines", FuzzLineFinder},  {"course-code", FuzzCourseCodeRule},
        {"input", FuzzInputChecks},
#ifndef _WIN32 // where the drives are the system's own
        {"drives", FuzzDrivesConf},
#endif
    };
    return targets;
}
