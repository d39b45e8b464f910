#pragma once

#include "commands/ExitCode.h"
#include "commands/Options.h"

#include <variant>

namespace satwecvt {

/// What the program was asked to do; an exit code when there is nothing left to do.
using CCommand = std::variant<EExitCode, CConvertOptions, CCheckOptions, CViewOptions, CBatchOptions>;

/// Reads the program's arguments. Help, the version and what is wrong have been printed when an exit code is returned.
CCommand ParseCommandLine(int argc, const char* const* argv);

}  // namespace satwecvt
