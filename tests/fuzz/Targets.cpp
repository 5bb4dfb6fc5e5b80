#include "tests/fuzz/Targets.h"

std::span<const FuzzTarget> FuzzTargets() {
    static constexpr FuzzTarget targets[] = {
        {"config", FuzzConfigFile}, {"quoted", FuzzQuotedLines},
        {"scheme", FuzzSchemeFile}, {"transfer", FuzzTransferFile},
        {"setup", FuzzSetupFile},   {"record", FuzzRecordSplitter},
        {"lines", FuzzLineFinder},  {"course-code", FuzzCourseCodeRule},
        {"input", FuzzInputChecks}, {"drives", FuzzDrivesConf},
    };
    return targets;
}
