// The command line of generate_tower:
//
//   generate_tower --stories 8 --bays-x 5 --bays-y 3 STRUCTURE LOAD      (the defaults, which give samples/tower)
//   generate_tower --stories 40 --lines 1000000 STRUCTURE LOAD
#pragma once

#include "Tower.h"

#include <optional>
#include <string>

namespace satwecvt {

/// What generate_tower was asked to write, and where.
struct CTowerOptions {
    CTower tower;
    std::string structurePath;
    std::string loadPath;
};

/// Reads the program's arguments. When there is nothing to write (help, wrong usage), the text for the user has been
/// printed, no options are returned, and `exitCode` is what the program ends with: 0 for help only.
std::optional<CTowerOptions> ParseCommandLine(int argc, const char* const* argv, int& exitCode);

}  // namespace satwecvt
