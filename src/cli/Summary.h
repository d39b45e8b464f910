#pragma once

#include "cli/Outcome.h"

#include <iosfwd>

namespace satwecvt {

/// Prints the summary of a conversion that wrote a model: where it is, how many lines were read, how much of each kind
/// was read and written, and where the message log is.
void PrintSummary(std::ostream& out, const COutcome& outcome);

}  // namespace satwecvt
