#pragma once

#include "cli/Outcome.h"
#include "satwecvt/UserInterface.h"

#include <string>

namespace satwecvt {

/// Converts a pair of files, with the balance of its loads, and writes nothing: the outputs lie in memory.
COutcome ConvertInMemory(CUserInterface& userInterface, const std::string& structurePath, const std::string& loadPath);

}  // namespace satwecvt
