#pragma once

#include "cli/ExitCode.h"
#include "cli/Outcome.h"
#include "output/SafeFiles.h"
#include "satwecvt/UserInterface.h"

namespace satwecvt {

/// Puts the outputs of a conversion in their places, where it went well enough for that. Returns the exit code of the
/// conversion. An output that cannot take its place is told to the user, and in the report's messages.
EExitCode KeepOutputs(CUserInterface& userInterface, CSafeFiles& files, COutcome& outcome, EStrictness strictness);

}  // namespace satwecvt
