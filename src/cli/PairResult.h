#pragma once

#include "commands/ExitCode.h"
#include "conversion/Outcome.h"

#include <cstdint>
#include <string>

namespace satwecvt {

/// What a batch keeps of a conversion until its turn has come to be told.
struct CPairResult {
    EExitCode exitCode = EExitCode::NotConverted;
    std::int64_t losses = 0;  // findings of a pair that was converted or refused
    std::int64_t doubts = 0;
    std::int64_t notes = 0;
    std::string line;    // for the terminal
    std::string record;  // a line of JSON; empty where nobody wants one
};

/// How a conversion ended, in one line: the word, the structure file, which tells the pair from all others, and the
/// findings or the failure.
std::string PairLine(const COutcome& outcome, EExitCode exitCode);

}  // namespace satwecvt
