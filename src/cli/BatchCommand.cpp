#include "cli/BatchCommand.h"

#include "cli/BatchRun.h"
#include "cli/BrokenPipes.h"
#include "cli/Losses.h"
#include "cli/OutputClashes.h"
#include "cli/PairFolders.h"
#include "cli/PairList.h"
#include "cli/Report.h"
#include "satwecvt/ConvertSatwe.h"
#include "ui/console/Interrupt.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

namespace satwecvt {

namespace {

void PrintErrors(const std::vector<std::string>& errors)
{
    constexpr std::size_t kMost = 10;
    for (std::size_t i = 0; i < std::min(errors.size(), kMost); ++i) {
        PrintError(errors[i]);
    }
    if (errors.size() > kMost) {
        PrintError("and " +
                   CountText(static_cast<std::int64_t>(errors.size() - kMost), "more of these", "more of these"));
    }
}

/// The outputs of a pair: the model where a single conversion puts it, the log beside it, since one for all pairs in
/// the working folder would be written by each.
CConversionPaths PathsOf(const CInputPair& pair)
{
    constexpr std::size_t kExtension = 4;  // ".vkm"
    CConversionPaths paths = LibraryPaths(pair.structure, pair.load);
    paths.messageLog = paths.model.substr(0, paths.model.size() - kExtension) + ".msg";
    return paths;
}

std::vector<CConversionPaths> PathsOf(const std::vector<CInputPair>& pairs)
{
    std::vector<CConversionPaths> paths;
    paths.reserve(pairs.size());
    for (const CInputPair& pair : pairs) {
        paths.push_back(PathsOf(pair));
    }
    return paths;
}

/// An option that names a file: "-" names none.
std::string FileOf(const std::string& option)
{
    return option == "-" ? "" : option;
}

std::size_t ThreadsOf(const CBatchOptions& options)
{
    return options.jobs > 0 ? static_cast<std::size_t>(options.jobs)
                            : std::max<std::size_t>(std::thread::hardware_concurrency(), 1);
}

/// Converts pairs of which nothing stands in the way of another.
EExitCode Convert(const std::vector<CConversionPaths>& pairs, const CBatchOptions& options)
{
    CBatchRecord record(options.jsonLinesPath);
    if (!record.Open()) {
        return EExitCode::OutputIncomplete;
    }
    IgnoreBrokenPipes();
    std::ostream& out = record.IsStdout() ? std::cerr : std::cout;
    COrderedResults results(out, record);
    const CPairTreatment treatment{options.isStrict ? EStrictness::Strict : EStrictness::Lenient, record.IsWanted()};
    const CInterrupt interrupt;
    CBatchRun(pairs, treatment, results).Work(ThreadsOf(options));
    const CBatchTotals& totals = results.Totals();
    const auto count = static_cast<std::int64_t>(pairs.size());
    out << TotalsText(totals, count) << std::endl;
    EExitCode exitCode = totals.exitCode;
    if (totals.Begun() < count) {
        exitCode = EExitCode::Cancelled;
    }
    if (!std::cout.flush().good()) {
        PrintError("stdout could not be written");
        exitCode = Worse(exitCode, EExitCode::OutputIncomplete);
    }
    return record.Close() ? exitCode : Worse(exitCode, EExitCode::OutputIncomplete);
}

}  // namespace

EExitCode RunBatch(const CBatchOptions& options)
{
    const CInputPairs found = options.listPath.empty()
                                  ? PairsInFolders(options.folders, {options.structureName, options.loadName})
                                  : PairsOfList(options.listPath);
    PrintErrors(found.errors);
    if (found.exitCode == EExitCode::WrongUsage || found.pairs.empty()) {
        return found.exitCode;
    }
    const std::vector<CConversionPaths> pairs = PathsOf(found.pairs);
    const std::vector<std::string> clashes =
        OutputClashes(pairs, {FileOf(options.listPath), FileOf(options.jsonLinesPath)});
    if (!clashes.empty()) {
        PrintErrors(clashes);
        return EExitCode::WrongUsage;
    }
    return Worse(found.exitCode, Convert(pairs, options));
}

}  // namespace satwecvt
