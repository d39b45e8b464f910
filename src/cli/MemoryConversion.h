#pragma once

#include "cli/Outcome.h"

#include <string>

namespace satwecvt {

/// Converts a pair of files, with the balance of its loads, and writes nothing: the outputs lie in memory. Progress goes
/// to stderr.
COutcome ConvertInMemory(const std::string& structurePath, const std::string& loadPath);

}  // namespace satwecvt
