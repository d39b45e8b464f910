#pragma once

#include "cli/PairResult.h"
#include "commands/ExitCode.h"

#include <cstdint>
#include <string>

namespace satwecvt {

/// The sums over the pairs of a batch.
struct CBatchTotals {
    std::int64_t ok = 0;
    std::int64_t refused = 0;
    std::int64_t failed = 0;
    std::int64_t cancelled = 0;
    std::int64_t losses = 0;
    std::int64_t doubts = 0;
    std::int64_t notes = 0;
    EExitCode exitCode = EExitCode::Written;  // the worst

    void Add(const CPairResult& result);
    std::int64_t Begun() const noexcept { return ok + refused + failed + cancelled; }
};

/// "500 pairs: 497 ok, 2 refused, 1 failed; 12 losses, 0 doubts, 31 notes".
std::string TotalsText(const CBatchTotals& totals, std::int64_t pairs);

/// The worse of two exit codes: a cancel before an output that is not whole, before a pair that was not converted,
/// before one that was refused.
EExitCode Worse(EExitCode a, EExitCode b);

}  // namespace satwecvt
