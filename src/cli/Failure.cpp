#include "cli/Failure.h"

#include "cli/FindingLines.h"
#include "cli/TerminalText.h"
#include "cli/Utf8Path.h"
#include "finding/Quoted.h"

#include <filesystem>
#include <iostream>
#include <system_error>

namespace satwecvt {

namespace {

/// Whether something is there that cannot be read twice: the system's word for that says little.
bool IsNoRegularFile(const std::string& path)
{
    std::error_code failed;
    const std::filesystem::file_status status = std::filesystem::status(PathOf(path), failed);
    return std::filesystem::is_other(status);
}

}  // namespace

CFailure FailureOf(const std::string& reason)
{
    return CFailure{{}, "", reason, ""};
}

std::string FailureSentence(const CConversionReport& report)
{
    const CFailure& failure = *report.failure;
    if (!failure.text.empty()) {
        return failure.reason + ": " + Quoted(failure.text);
    }
    if (!failure.block.empty()) {
        return failure.reason + " (" + failure.block + ")";
    }
    const bool isOpening = !report.isRead && failure.place.source != ESource::Model;
    if (!isOpening) {
        return failure.reason;
    }
    const bool isStructure = failure.place.source == ESource::StructureFile;
    const bool isOther = IsNoRegularFile(isStructure ? report.paths.structure : report.paths.load);
    return "cannot be opened: " + (isOther ? "it is not a regular file" : failure.reason);
}

void PrintFailure(const CConversionReport& report)
{
    if (report.result == kCancelled) {
        std::cerr << "satwecvt: cancelled; nothing was written\n";
    } else if (report.failure) {
        const std::string place = PlaceText(report.paths, report.failure->place);
        std::cerr << (place.empty() ? "satwecvt: " : place) << "error: " << TerminalText(FailureSentence(report))
                  << "\n";
    }
}

}  // namespace satwecvt
