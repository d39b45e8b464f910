#pragma once

#include "commands/ExitCode.h"
#include "commands/Options.h"

namespace satwecvt {

/// Converts many pairs, several at once, and tells of each in one line. Returns the worst exit code of them all.
EExitCode RunBatch(const CBatchOptions& options);

}  // namespace satwecvt
