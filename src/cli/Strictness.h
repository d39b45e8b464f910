#pragma once

#include "commands/ExitCode.h"
#include "conversion/Outcome.h"

namespace satwecvt {

/// Whether losses and doubts end a conversion with an exit code of their own.
enum class EStrictness { Strict, Lenient };

/// The exit code of a conversion, as far as its outputs can be put in their places.
EExitCode ExitCodeOf(const COutcome& outcome, EStrictness strictness);

}  // namespace satwecvt
