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

namespace satwecvt {

namespace {

void PrintError(const std::string& text)
{
    std::cerr << "satwecvt: " << text << "\n";
}

/// The report may not be one of the conversion's own files: it would take their place.
bool ReportHasItsOwnFile(const CConvertOptions& options)
{
    CFileSystem& system = CFileSystem::System();
    const std::string outputPath = OutputPath(options.structurePath);
    for (const char* taken :
         {options.structurePath.c_str(), options.loadPath.c_str(), outputPath.c_str(), kMessageFileName}) {
        if (options.jsonPath == taken || system.IsSameFile(options.jsonPath.c_str(), taken)) {
            PrintError("--json " + options.jsonPath + ": this file belongs to the conversion itself");
            return false;
        }
    }
    return true;
}

std::vector<std::string> ReadLines(const std::string& path)
{
    std::vector<std::string> lines;
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
    if (stop.line == 0 && stop.block.empty()) {
        return stop.path + ": " + stop.reason;
    }
    return stop.path + ":" + std::to_string(stop.line) + ": " + stop.block + ": " + stop.reason;
}

void PrintProblems(const CConversionOutcome& outcome)
{
    const CReadStop& stop = outcome.report.readStop;
    if (outcome.result == kCancelled) {
        PrintError("cancelled; nothing was written");
    } else if (outcome.result == kFailed && !stop.path.empty()) {
        PrintError(DescribeStop(stop));
    } else if (outcome.result == kFailed) {
        const std::string stage = outcome.screen.stages.empty() ? "" : " " + outcome.screen.stages.back();
        PrintError("the model text file is incomplete: " + outcome.report.failure + stage);
    } else if (!stop.path.empty()) {
        PrintError("warning: " + DescribeStop(stop) + "; the loads read so far were converted");
    }
}

/// Writes the report where it was asked for; answers false when that fails.
bool WriteReport(const std::string& path, const CConversionOutcome& outcome)
{
    if (path.empty()) {
        return true;
    }
    if (path == "-") {
        std::cout << JsonReport(outcome) << std::flush;
        return std::cout.good();
    }
    std::ofstream file(path, std::ios::binary);
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
    const bool reportGoesToFile = !options.jsonPath.empty() && options.jsonPath != "-";
    if (reportGoesToFile && !ReportHasItsOwnFile(options)) {
        return EExitCode::WrongUsage;
    }
    const CInterrupt interrupt;
    const CConversionOutcome outcome = Convert(options);
    PrintProblems(outcome);
    const EExitCode exitCode = ExitCodeOf(outcome);
    if (exitCode == EExitCode::Written && !options.isQuiet && options.jsonPath != "-") {
        PrintSummary(std::cout, outcome);
    }
    const bool isReported = WriteReport(options.jsonPath, outcome) && std::cout.flush().good();
    if (!isReported) {
        PrintError("the summary or the report could not be written");
    }
    return isReported || exitCode != EExitCode::Written ? exitCode : EExitCode::OutputIncomplete;
}

}  // namespace satwecvt
