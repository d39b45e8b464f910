#include "cli/BatchTotals.h"

#include "cli/Losses.h"

#include <algorithm>
#include <array>

namespace satwecvt {

void CBatchTotals::Add(const CPairResult& result)
{
    switch (result.exitCode) {
    case EExitCode::Written:
        ++ok;
        break;
    case EExitCode::Refused:
        ++refused;
        break;
    case EExitCode::Cancelled:
        ++cancelled;
        break;
    default:
        ++failed;
        break;
    }
    losses += result.losses;
    doubts += result.doubts;
    notes += result.notes;
    exitCode = Worse(exitCode, result.exitCode);
}

std::string TotalsText(const CBatchTotals& totals, std::int64_t pairs)
{
    std::string text = CountText(pairs, "pair", "pairs") + ": " + CountText(totals.ok, "ok", "ok");
    const auto add = [&](std::int64_t count, const std::string& word) {
        text += count > 0 ? ", " + CountText(count, word, word) : "";
    };
    add(totals.refused, "refused");
    add(totals.failed, "failed");
    add(totals.cancelled, "cancelled");
    add(pairs - totals.Begun(), "not begun");
    CLosses findings;
    findings.losses = totals.losses;
    findings.doubts = totals.doubts;
    findings.notes = totals.notes;
    return text + "; " + FindingCounts(findings);
}

EExitCode Worse(EExitCode a, EExitCode b)
{
    constexpr std::array kFromBadToWorse = {EExitCode::Written, EExitCode::Refused, EExitCode::NotConverted,
                                            EExitCode::OutputIncomplete, EExitCode::Cancelled};
    const auto rank = [&](EExitCode code) { return std::find(kFromBadToWorse.begin(), kFromBadToWorse.end(), code); };
    return rank(a) < rank(b) ? b : a;
}

}  // namespace satwecvt
