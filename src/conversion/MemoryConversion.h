#pragma once

#include "conversion/Conversion.h"
#include "conversion/Outcome.h"
#include "output/MemoryOutputs.h"
#include "satwecvt/UserInterface.h"

#include <string>

namespace satwecvt {

/// The names under which the outputs lie in memory. No files have such names: whatever the inputs are called, they are
/// others.
inline constexpr char kModelInMemory[] = "<model>";
inline constexpr char kLogInMemory[] = "<log>";

/// Converts a pair of files, with the balance of its loads, and writes nothing: the outputs lie in `files`.
COutcome ConvertInMemory(CUserInterface& userInterface, CMemoryOutputs& files, const std::string& structurePath,
                         const std::string& loadPath, ELook look);

}  // namespace satwecvt
