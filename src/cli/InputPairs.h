#pragma once

#include "commands/ExitCode.h"

#include <string>
#include <vector>

namespace satwecvt {

/// The two files of a building.
struct CInputPair {
    std::string structure;
    std::string load;
};

/// The pairs of a batch, in their order, and what went wrong on the way to them.
struct CInputPairs {
    std::vector<CInputPair> pairs;
    std::vector<std::string> errors;
    EExitCode exitCode = EExitCode::Written;  // of the errors; with wrong usage, nothing is to be converted
};

}  // namespace satwecvt
