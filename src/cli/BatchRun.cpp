#include "cli/BatchRun.h"

#include "cli/BatchInterface.h"
#include "cli/JsonReport.h"
#include "cli/KeptOutputs.h"
#include "cli/Losses.h"
#include "conversion/Conversion.h"
#include "conversion/Failure.h"
#include "output/SafeFiles.h"

#include <algorithm>
#include <exception>
#include <string>
#include <system_error>
#include <thread>

namespace satwecvt {

namespace {

CPairResult ResultOf(const COutcome& outcome, EExitCode exitCode, const CPairTreatment& treatment)
{
    CPairResult result;
    result.exitCode = exitCode;
    if (exitCode == EExitCode::Written || exitCode == EExitCode::Refused) {
        const CLosses losses = CountLosses(outcome.findings);
        result.losses = losses.losses;
        result.doubts = losses.doubts;
        result.notes = losses.notes;
    }
    result.line = PairLine(outcome, exitCode);
    if (treatment.isRecorded) {
        result.record = JsonReport(outcome, exitCode, EJsonLayout::OneLine);
    }
    return result;
}

CPairResult Convert(const CConversionPaths& paths, const CPairTreatment& treatment)
{
    CSafeFiles files(CFileSystem::System());
    CBatchInterface screen;
    const EBalance balance = treatment.isRecorded ? EBalance::Wanted : EBalance::Unwanted;
    COutcome outcome = ConvertPair(screen, files, paths, balance, ELook::BehindTheWriting);
    const EExitCode exitCode = KeepOutputs(files, outcome, treatment.strictness);
    return ResultOf(outcome, exitCode, treatment);
}

/// One pair's failure stops no other, whatever it is.
CPairResult ConvertWhateverComes(const CConversionPaths& paths, const CPairTreatment& treatment)
{
    try {
        return Convert(paths, treatment);
    } catch (const std::exception& failure) {
        COutcome outcome;
        outcome.report.paths = paths;
        outcome.report.failure = FailureOf(failure.what());
        return ResultOf(outcome, EExitCode::NotConverted, treatment);
    }
}

}  // namespace

CBatchRun::CBatchRun(const std::vector<CConversionPaths>& paths, const CPairTreatment& pairTreatment,
                     COrderedResults& orderedResults)
    : pairs(paths),
      treatment(pairTreatment),
      results(orderedResults)
{}

void CBatchRun::Work(std::size_t threads)
{
    std::vector<std::jthread> others;  // joined however this ends
    const std::size_t wanted = std::min(threads, pairs.size());
    others.reserve(wanted);
    try {
        while (others.size() + 1 < wanted) {
            others.emplace_back([this] { WorkHere(); });
        }
    } catch (const std::system_error&) {  // no more threads to be had: those that there are do it, too
    }
    WorkHere();
}

void CBatchRun::WorkHere()
{
    while (!CInterrupt::Requested()) {
        const std::size_t number = next.fetch_add(1);
        if (number >= pairs.size()) {
            return;
        }
        results.Put(number, ConvertWhateverComes(pairs[number], treatment));
    }
}

}  // namespace satwecvt
