#include "cli/ConvertCommand.h"

#include "cli/Conversion.h"
#include "cli/Failure.h"
#include "cli/FindingLines.h"
#include "cli/Losses.h"
#include "cli/ProgramInterface.h"
#include "cli/Report.h"
#include "cli/Summary.h"
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

/// Puts the outputs in their places, where the conversion went well enough for that.
EExitCode KeepOutputs(CSafeFiles& files, COutcome& outcome, EStrictness strictness)
{
    const EExitCode exitCode = ExitCodeOf(outcome, strictness);
    if (exitCode != EExitCode::Written) {
        return exitCode;
    }
    try {
        files.Keep();
        outcome.isKept = true;
        return exitCode;
    } catch (const CFileError& error) {
        outcome.report.failure = FailureOf(FileErrorText(error.Cause(), error.Path()));
        return EExitCode::OutputIncomplete;
    }
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
        std::cerr << "strict: " << LossesText(CountLosses(outcome.findings)) << "; " << paths.model
                  << " was not written\n";
    }
    if (exitCode == EExitCode::Written && !options.isQuiet && options.jsonPath != "-") {
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
    CSafeFiles files(CFileSystem::System());
    const bool isDrawn = !options.isQuiet && CConsoleInterface::StderrIsTerminal();
    CProgramInterface screen(isDrawn ? EProgressLine::Drawn : EProgressLine::Off);
    COutcome outcome = ConvertPair(screen, files, paths, report.IsWanted() ? EBalance::Wanted : EBalance::Unwanted);
    const EExitCode exitCode =
        KeepOutputs(files, outcome, options.isStrict ? EStrictness::Strict : EStrictness::Lenient);
    PrintOutcome(options, outcome, exitCode);
    return report.Write(outcome, exitCode);
}

}  // namespace satwecvt
