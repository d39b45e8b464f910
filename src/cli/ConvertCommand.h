#pragma once

#include "commands/ExitCode.h"
#include "commands/Options.h"

namespace satwecvt {

/// Runs one conversion and tells its user how it went: the summary on stdout, the report where it was asked for,
/// findings and what went wrong on stderr.
EExitCode RunConvert(const CConvertOptions& options);

}  // namespace satwecvt
