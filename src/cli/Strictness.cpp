#include "cli/Strictness.h"

#include "cli/Losses.h"

namespace satwecvt {

EExitCode ExitCodeOf(const COutcome& outcome, EStrictness strictness)
{
    if (outcome.report.result == kCancelled) {
        return EExitCode::Cancelled;
    }
    if (outcome.report.result != kWritten) {
        return EExitCode::NotConverted;
    }
    if (outcome.report.hasFileError) {
        return EExitCode::OutputIncomplete;
    }
    const CLosses losses = CountLosses(outcome.findings);
    const bool isRefused = strictness == EStrictness::Strict && losses.losses + losses.doubts > 0;
    return isRefused ? EExitCode::Refused : EExitCode::Written;
}

}  // namespace satwecvt
