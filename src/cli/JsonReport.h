#pragma once

#include "commands/ExitCode.h"
#include "conversion/Outcome.h"

#include <string>

namespace satwecvt {

/// How the report is laid out.
enum class EJsonLayout { Indented, OneLine };

/// The report of a conversion as one JSON object, closed by a newline; docs/report.schema.json describes it. Bytes of a
/// path that are no UTF-8 are replaced.
std::string JsonReport(const COutcome& outcome, EExitCode exitCode, EJsonLayout layout);

}  // namespace satwecvt
