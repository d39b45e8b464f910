#include "cli/Outcome.h"

#include "cli/Losses.h"
#include "text/TextBuffer.h"
#include "writer/MessageText.h"

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

std::vector<std::string> LogLines(const COutcome& outcome)
{
    std::vector<std::string> lines;
    if (!outcome.isKept || !outcome.report.hasMessageLog) {
        return lines;
    }
    for (const CFinding& finding : outcome.told) {
        CTextBuffer message;
        if (WriteMessage(message, finding)) {
            lines.emplace_back(message.Text().substr(0, message.Text().size() - 1));
        }
    }
    return lines;
}

}  // namespace satwecvt
