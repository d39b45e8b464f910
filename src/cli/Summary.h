#pragma once

#include "conversion/Outcome.h"

#include <iosfwd>

namespace satwecvt {

/// Prints what became of each kind: read, converted, lost, and the lines in the model.
void PrintCounts(std::ostream& out, const COutcome& outcome);

/// Prints the summary of a conversion that wrote a model: where it is, how many lines were read, what became of each
/// kind, where the message log is, and how many findings there are.
void PrintSummary(std::ostream& out, const COutcome& outcome);

}  // namespace satwecvt
