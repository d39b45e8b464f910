#include "cli/CheckCommand.h"

#include "cli/BalanceTable.h"
#include "cli/Conversion.h"
#include "cli/Failure.h"
#include "cli/FindingLines.h"
#include "cli/Losses.h"
#include "cli/ProgramInterface.h"
#include "cli/Report.h"
#include "cli/Summary.h"
#include "output/MemoryOutputs.h"
#include "satwecvt/ConvertSatwe.h"

#include <iostream>

namespace satwecvt {

namespace {

/// The outputs lie in memory, under names of no files: whatever the inputs are called, they are others.
CConversionPaths PathsOf(const CCheckOptions& options)
{
    CConversionPaths paths = LibraryPaths(options.structurePath, options.loadPath);
    paths.model = "<model>";
    paths.messageLog = "<log>";
    return paths;
}

void PrintOverview(const COverview& overview)
{
    std::cout << "Model     " << CountText(overview.stories, "story", "stories");
    if (overview.hasNodes) {
        const auto print = [](const char* axis, const CExtent& extent) {
            std::cout << axis << " " << extent.from << " to " << extent.to;
        };
        print(", z", overview.z);
        print("; x", overview.x);
        print(", y", overview.y);
    }
    std::cout << "\n";
}

/// An output in memory fails for one reason only, and its name is none for users.
void NameMemory(COutcome& outcome)
{
    if (outcome.report.hasFileError) {
        outcome.report.hasFileError = false;
        outcome.report.result = kFailed;
        outcome.report.messages.clear();
        outcome.report.failure = FailureOf("out of memory");
    }
}

void PrintCheck(const COutcome& outcome)
{
    if (outcome.IsWhole()) {
        PrintOverview(*outcome.overview);
        PrintCounts(std::cout, outcome);
        std::cout << "\n";
        PrintBalance(std::cout, *outcome.loads);
        std::cout << "\n";
    }
    PrintFindings(std::cout, outcome.report.paths, outcome.findings);
    if (outcome.IsWhole()) {
        std::cout << FindingCounts(CountLosses(outcome.findings)) << "\n";
    }
}

}  // namespace

EExitCode RunCheck(const CCheckOptions& options)
{
    const CConversionPaths paths = PathsOf(options);
    const CReportFile report(options.jsonPath, {paths.structure, paths.load});
    if (!report.IsItsOwn()) {
        return EExitCode::WrongUsage;
    }
    CMemoryOutputs files(CFileSystem::System());
    CProgramInterface screen(CConsoleInterface::StderrIsTerminal() ? EProgressLine::Drawn : EProgressLine::Off);
    COutcome outcome = ConvertPair(screen, files, paths, EBalance::Wanted, ELook::BesideTheWriting);
    NameMemory(outcome);
    if (!report.IsStdout()) {
        PrintCheck(outcome);
    }
    PrintFailure(outcome.report);
    return report.Write(outcome, ExitCodeOf(outcome, options.isStrict ? EStrictness::Strict : EStrictness::Lenient));
}

}  // namespace satwecvt
