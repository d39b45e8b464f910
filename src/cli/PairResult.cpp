#include "cli/PairResult.h"

#include "cli/FindingLines.h"
#include "cli/Losses.h"
#include "cli/TerminalText.h"
#include "conversion/Failure.h"

#include <algorithm>

namespace satwecvt {

namespace {

/// How a conversion ended, in one word.
const char* StatusWord(EExitCode exitCode)
{
    switch (exitCode) {
    case EExitCode::Written:
        return "ok";
    case EExitCode::Refused:
        return "refused";
    case EExitCode::Cancelled:
        return "cancelled";
    default:
        return "failed";
    }
}

/// What a conversion failed for, with its place, behind the pair's name.
std::string FailureText(const COutcome& outcome)
{
    const CConversionReport& report = outcome.report;
    const CPlace place = report.failure->place;
    const bool hasName = place.source == ESource::StructureFile;
    std::string text = (hasName ? "" : report.paths.structure + ": ") + PlaceText(report.paths, place);
    text += FailureSentence(report);
    for (const CFinding& finding : outcome.findings) {
        if (finding.code == EFinding::FilesSwapped) {
            text += "; " + FindingText(finding);
        }
    }
    return text;
}

std::string ResultText(const COutcome& outcome, EExitCode exitCode)
{
    const std::string& name = outcome.report.paths.structure;
    switch (exitCode) {
    case EExitCode::Written:
        return name + ": " + FindingCounts(CountLosses(outcome.findings));
    case EExitCode::Refused:
        return name + ": " + LossesText(CountLosses(outcome.findings));
    case EExitCode::Cancelled:
        return name;
    default:
        return FailureText(outcome);
    }
}

}  // namespace

std::string PairLine(const COutcome& outcome, EExitCode exitCode)
{
    constexpr std::size_t kWidth = 10;  // the longest word and a blank
    std::string line = StatusWord(exitCode);
    line.resize(std::max(line.size(), kWidth), ' ');
    return TerminalText(line + ResultText(outcome, exitCode)) + "\n";
}

}  // namespace satwecvt
