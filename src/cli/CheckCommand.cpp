#include "cli/CheckCommand.h"

#include "cli/BalanceTable.h"
#include "cli/FailureLine.h"
#include "cli/FindingLines.h"
#include "cli/Losses.h"
#include "cli/ProgramInterface.h"
#include "cli/Report.h"
#include "cli/Strictness.h"
#include "cli/Summary.h"
#include "conversion/MemoryConversion.h"
#include "output/MemoryOutputs.h"

#include <iostream>

namespace satwecvt {

namespace {

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
    const CReportFile report(options.jsonPath, {options.structurePath, options.loadPath});
    if (!report.IsItsOwn()) {
        return EExitCode::WrongUsage;
    }
    CProgramInterface screen(CConsoleInterface::StderrIsTerminal() ? EProgressLine::Drawn : EProgressLine::Off);
    CMemoryOutputs files(CFileSystem::System());
    const COutcome outcome =
        ConvertInMemory(screen, files, options.structurePath, options.loadPath, ELook::BesideTheWriting);
    if (!report.IsStdout()) {
        PrintCheck(outcome);
    }
    PrintFailure(outcome.report);
    return report.Write(outcome, ExitCodeOf(outcome, options.isStrict ? EStrictness::Strict : EStrictness::Lenient));
}

}  // namespace satwecvt
