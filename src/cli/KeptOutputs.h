#pragma once

#include "cli/Strictness.h"
#include "commands/ExitCode.h"
#include "conversion/Outcome.h"
#include "output/SafeFiles.h"

namespace satwecvt {

/// Puts the outputs of a conversion in their places, where it went well enough for that. Returns the exit code of the
/// conversion. An output that cannot take its place is the failure of the report.
EExitCode KeepOutputs(CSafeFiles& files, COutcome& outcome, EStrictness strictness);

}  // namespace satwecvt
