#pragma once

#include "cli/CommandLine.h"
#include "cli/ExitCode.h"

namespace satwecvt {

/// Runs one conversion and tells its user how it went: the summary on stdout, the report where it was asked for, and
/// everything that went wrong on stderr.
EExitCode RunConvert(const CConvertOptions& options);

}  // namespace satwecvt
