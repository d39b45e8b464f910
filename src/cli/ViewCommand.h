#pragma once

#include "commands/ExitCode.h"
#include "commands/Options.h"

namespace satwecvt {

/// Converts a pair of files in memory, and writes a page that shows what arrived, and plans where they are wanted.
/// Either all of them are in their places afterwards or none is, as far as the system lets us.
EExitCode RunView(const CViewOptions& options);

}  // namespace satwecvt
