#pragma once

#include "cli/ExitCode.h"

#include <optional>
#include <string>

namespace satwecvt {

/// What the command "convert" was asked to do.
struct CConvertOptions {
    std::string structurePath;
    std::string loadPath;
    std::string jsonPath;  // empty: no report; "-": stdout
    bool isQuiet = false;
};

/// Reads the program's arguments. When there is nothing to convert (help, version, wrong usage), the answer has been
/// printed, no options are given back, and `exitCode` says how to end.
std::optional<CConvertOptions> ParseCommandLine(int argc, const char* const* argv, EExitCode& exitCode);

}  // namespace satwecvt
