#include "cli/ConvertCommand.h"

#include "cli/BrokenPipes.h"
#include "cli/FailureLine.h"
#include "cli/FindingLines.h"
#include "cli/KeptOutputs.h"
#include "cli/Losses.h"
#include "cli/ProgramInterface.h"
#include "cli/Report.h"
#include "cli/Summary.h"
#include "cli/TerminalText.h"
#include "conversion/Conversion.h"
#include "output/SafeFiles.h"
#include "satwecvt/ConvertSatwe.h"

#include <iostream>

namespace satwecvt {

namespace {

CConversionPaths PathsOf(const CConvertOptions& options)
{
    CConversionPaths paths = LibraryPaths(options.structurePath, options.loadPath);
    if (!options.modelPath.empty()) {
        paths.model = options.modelPath;
    }
    if (!options.logPath.empty()) {
        paths.messageLog = options.logPath;
    }
    return paths;
}

/// Whether stdout is there for a summary: not where it carries the report, or is an output itself.
bool HasSummary(const CConvertOptions& options, const CConversionPaths& paths)
{
    return !options.isQuiet && options.jsonPath != "-" && !IsStdoutFile(paths.model) && !IsStdoutFile(paths.messageLog);
}

void PrintOutcome(const CConvertOptions& options, const COutcome& outcome, EExitCode exitCode)
{
    const CConversionPaths& paths = outcome.report.paths;
    if (options.isQuiet) {
        PrintProblems(std::cerr, paths, outcome.findings);
    } else {
        PrintFindings(std::cerr, paths, outcome.findings);
    }
    PrintFailure(outcome.report);
    if (exitCode == EExitCode::Refused) {
        std::cerr << "strict: " << LossesText(CountLosses(outcome.findings)) << "; " << TerminalText(paths.model)
                  << " was not written\n";
    }
    if (exitCode == EExitCode::Written && HasSummary(options, paths)) {
        PrintSummary(std::cout, outcome);
    }
}

}  // namespace

EExitCode RunConvert(const CConvertOptions& options)
{
    const CConversionPaths paths = PathsOf(options);
    const CReportFile report(options.jsonPath, {paths.structure, paths.load, paths.model, paths.messageLog});
    if (!report.IsItsOwn()) {
        return EExitCode::WrongUsage;
    }
    IgnoreBrokenPipes();
    CSafeFiles files(CFileSystem::System());
    const bool isDrawn = !options.isQuiet && CConsoleInterface::StderrIsTerminal();
    CProgramInterface screen(isDrawn ? EProgressLine::Drawn : EProgressLine::Off);
    const EBalance balance = report.IsWanted() ? EBalance::Wanted : EBalance::Unwanted;
    COutcome outcome = ConvertPair(screen, files, paths, balance, ELook::BesideTheWriting);
    const EExitCode exitCode =
        KeepOutputs(files, outcome, options.isStrict ? EStrictness::Strict : EStrictness::Lenient);
    PrintOutcome(options, outcome, exitCode);
    return report.Write(outcome, exitCode);
}

}  // namespace satwecvt
