#include "cli/ConvertCommand.h"

#include "cli/JsonReport.h"
#include "cli/Outcome.h"
#include "cli/Summary.h"
#include "satwecvt/ConsoleInterface.h"
#include "satwecvt/ConvertSatwe.h"
#include "satwecvt/FileSystem.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string_view>
#include <system_error>

namespace satwecvt {

namespace {

void PrintError(const std::string& text)
{
    std::cerr << "satwecvt: " << text << "\n";
}

/// Whether two paths name one file, which need not exist yet.
bool NameOneFile(const std::string& a, const std::string& b)
{
    std::error_code failed;
    const std::filesystem::path fullA = std::filesystem::weakly_canonical(std::filesystem::absolute(a, failed), failed);
    const std::filesystem::path fullB = std::filesystem::weakly_canonical(std::filesystem::absolute(b, failed), failed);
    const bool areEqual = !fullA.empty() && fullA == fullB;
    return areEqual || CFileSystem::System().IsSameFile(a.c_str(), b.c_str());
}

/// The report may not be one of the conversion's own files: it would take their place.
bool ReportHasItsOwnFile(const CConvertOptions& options, const CConversionPaths& paths)
{
    for (const std::string& path : {paths.structure, paths.load, paths.model, paths.messageLog}) {
        if (NameOneFile(options.jsonPath, path)) {
            PrintError("--json " + options.jsonPath + ": this file belongs to the conversion itself");
            return false;
        }
    }
    return true;
}

COutcome Convert(CConsoleInterface& console, const CConversionPaths& paths)
{
    COutcome outcome;
    CConvertSatwe converter(console, &outcome.findings);
    static_cast<void>(converter.Convert(paths));  // the report has the result, too
    outcome.report = converter.Report();
    return outcome;
}

/// A place as compilers name it: "tower.sat:1460: "; nothing for one in no file.
std::string PlaceText(const CConversionPaths& paths, const CPlace& place)
{
    if (place.source == ESource::Model) {
        return "";
    }
    std::string text = place.source == ESource::StructureFile ? paths.structure : paths.load;
    if (place.line > 0) {
        text += ":" + std::to_string(place.line);
    }
    return text + ": ";
}

/// What failed, and where: "structure.sat:14: model-level nodes: a node needs 6 numbers, this line has 5".
std::string DescribeFailure(const CConversionReport& report)
{
    const CFailure& failure = *report.failure;
    const std::string block = failure.block.empty() ? "" : failure.block + ": ";
    return PlaceText(report.paths, failure.place) + block + failure.reason;
}

/// A finding as compilers tell it, so that an editor can jump there.
void PrintFinding(const CConversionPaths& paths, const CFinding& finding)
{
    std::cerr << PlaceText(paths, finding.place) << SeverityName(finding.severity) << ": " << FindingText(finding)
              << " [" << CodeName(finding.code) << "]\n";
}

void PrintProblems(const COutcome& outcome)
{
    const CConversionReport& report = outcome.report;
    for (const CFinding& finding : outcome.findings.Findings()) {
        if (finding.code == EFinding::EndsEarly) {
            PrintFinding(report.paths, finding);
        }
    }
    if (report.result == kCancelled) {
        PrintError("cancelled; nothing was written");
    } else if (report.failure && report.isRead) {
        PrintError(report.paths.model + " is incomplete: " + DescribeFailure(report));
    } else if (report.failure) {
        PrintError(DescribeFailure(report));
    }
}

bool ReportGoesToFile(const CConvertOptions& options)
{
    return !options.jsonPath.empty() && options.jsonPath != "-";
}

/// Writes the report where it was asked for; returns false when that fails.
bool WriteReport(const CConvertOptions& options, const COutcome& outcome)
{
    if (!ReportGoesToFile(options)) {
        if (!options.jsonPath.empty()) {
            std::cout << JsonReport(outcome) << std::flush;
        }
        return std::cout.good();
    }
    // Outputs that have come into being since are known under more names.
    if (!ReportHasItsOwnFile(options, outcome.report.paths)) {
        return false;
    }
    std::ofstream file(options.jsonPath, std::ios::binary);
    file << JsonReport(outcome);
    file.close();
    return !file.fail();
}

EExitCode ExitCodeOf(const CConversionReport& report)
{
    switch (report.result) {
    case kWritten:
        return report.hasFileError ? EExitCode::OutputIncomplete : EExitCode::Written;
    case kCancelled:
        return EExitCode::Cancelled;
    default:
        return EExitCode::NotConverted;
    }
}

}  // namespace

EExitCode RunConvert(const CConvertOptions& options)
{
    const CConversionPaths paths = LibraryPaths(options.structurePath, options.loadPath);
    if (ReportGoesToFile(options) && !ReportHasItsOwnFile(options, paths)) {
        return EExitCode::WrongUsage;
    }
    const bool isDrawn = !options.isQuiet && CConsoleInterface::StderrIsTerminal();
    CConsoleInterface console(isDrawn ? EProgressLine::Drawn : EProgressLine::Off);
    const COutcome outcome = Convert(console, paths);
    PrintProblems(outcome);
    const EExitCode exitCode = ExitCodeOf(outcome.report);
    if (exitCode == EExitCode::Written && !options.isQuiet && options.jsonPath != "-") {
        PrintSummary(std::cout, outcome);
    }
    const bool isReported = WriteReport(options, outcome) && std::cout.flush().good();
    if (!isReported) {
        PrintError("the summary or the report could not be written");
    }
    return isReported || exitCode != EExitCode::Written ? exitCode : EExitCode::OutputIncomplete;
}

}  // namespace satwecvt
