#include "cli/ConvertCommand.h"

#include "cli/ConversionOutcome.h"
#include "cli/JsonReport.h"
#include "cli/Summary.h"
#include "driver/ConvertSatwe.h"
#include "file/FileSystem.h"
#include "ui/console/ConsoleInterface.h"
#include "ui/console/Interrupt.h"
#include "writer/ModelWriter.h"
#include "writer/OutputPath.h"

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
bool ReportHasItsOwnFile(const CConvertOptions& options)
{
    const std::string taken[] = {options.structurePath, options.loadPath, OutputPath(options.structurePath),
                                 kMessageFileName};
    for (const std::string& path : taken) {
        if (NameOneFile(options.jsonPath, path)) {
            PrintError("--json " + options.jsonPath + ": this file belongs to the conversion itself");
            return false;
        }
    }
    return true;
}

/// The lines of the message log. A device in its place, which may have no end, has none.
std::vector<std::string> ReadLines(const std::string& path)
{
    std::vector<std::string> lines;
    std::error_code failed;
    if (!std::filesystem::is_regular_file(path, failed)) {
        return lines;
    }
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        lines.push_back(line);
    }
    return lines;
}

CConversionOutcome Convert(const CConvertOptions& options)
{
    const bool isDrawn = !options.isQuiet && CConsoleInterface::StderrIsTerminal();
    CConsoleInterface console(isDrawn ? EProgressLine::Drawn : EProgressLine::Off);
    CConvertSatwe converter(console);

    CConversionOutcome outcome;
    outcome.logPath = (std::filesystem::current_path() / kMessageFileName).string();
    outcome.result = converter.Convert(options.structurePath.c_str(), options.loadPath.c_str());
    outcome.report = converter.Report();
    outcome.screen = console.Record();
    if (outcome.result == kWritten) {
        outcome.outputPath = OutputPath(options.structurePath);
    }
    if (outcome.report.hasMessageFile) {
        outcome.log = ReadLines(outcome.logPath);
    }
    return outcome;
}

/// Says where an input file stopped, as compilers do: file, line, what was read there, and why it stopped.
std::string DescribeStop(const CReadStop& stop)
{
    std::string text = stop.path;
    if (stop.line > 0) {
        text += ":" + std::to_string(stop.line);
    }
    if (!stop.block.empty()) {
        text += ": " + stop.block;
    }
    return text + ": " + stop.reason;
}

/// How far the writing had come: " (Write Data File : Node)"; nothing when it was still about the files.
std::string LastStage(const CConversionOutcome& outcome)
{
    if (outcome.screen.stages.size() <= 1) {  // the reading's alone
        return "";
    }
    constexpr std::string_view kMarks = "!!! ";  // in front, and the other way round behind
    const std::string& stage = outcome.screen.stages.back();
    return " (" + stage.substr(kMarks.size(), stage.size() - 2 * kMarks.size()) + ")";
}

void PrintProblems(const CConvertOptions& options, const CConversionOutcome& outcome)
{
    const std::optional<CReadStop>& stop = outcome.report.readStop;
    if (outcome.result == kCancelled) {
        PrintError("cancelled; nothing was written");
    } else if (outcome.result == kFailed && outcome.report.isRead) {
        PrintError(OutputPath(options.structurePath) + " is incomplete: " + outcome.report.failure +
                   LastStage(outcome));
    } else if (outcome.result == kFailed && stop) {
        PrintError(DescribeStop(*stop));
    } else if (outcome.result == kFailed) {
        PrintError("out of memory");
    } else if (stop) {
        PrintError("warning: " + DescribeStop(*stop) + "; the loads read so far were converted");
    }
}

bool ReportGoesToFile(const CConvertOptions& options)
{
    return !options.jsonPath.empty() && options.jsonPath != "-";
}

/// Writes the report where it was asked for; answers false when that fails.
bool WriteReport(const CConvertOptions& options, const CConversionOutcome& outcome)
{
    if (!ReportGoesToFile(options)) {
        if (!options.jsonPath.empty()) {
            std::cout << JsonReport(outcome) << std::flush;
        }
        return std::cout.good();
    }
    if (!ReportHasItsOwnFile(options)) {  // outputs that have come into being since are known under more names
        return false;
    }
    std::ofstream file(options.jsonPath, std::ios::binary);
    file << JsonReport(outcome);
    file.close();
    return !file.fail();
}

EExitCode ExitCodeOf(const CConversionOutcome& outcome)
{
    switch (outcome.result) {
    case kWritten:
        return outcome.report.hasFileError ? EExitCode::OutputIncomplete : EExitCode::Written;
    case kCancelled:
        return EExitCode::Cancelled;
    default:
        return EExitCode::NotConverted;
    }
}

}  // namespace

EExitCode RunConvert(const CConvertOptions& options)
{
    if (ReportGoesToFile(options) && !ReportHasItsOwnFile(options)) {
        return EExitCode::WrongUsage;
    }
    const CInterrupt interrupt;
    const CConversionOutcome outcome = Convert(options);
    PrintProblems(options, outcome);
    const EExitCode exitCode = ExitCodeOf(outcome);
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
