#pragma once

#include "commands/ExitCode.h"
#include "commands/Options.h"

namespace satwecvt {

/// Converts a pair of files in memory and prints what its user wants to know before the model is used: the building at
/// a glance, what became of each kind, the balance of the loads, and the findings.
EExitCode RunCheck(const CCheckOptions& options);

}  // namespace satwecvt
