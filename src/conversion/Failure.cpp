#include "conversion/Failure.h"

#include "conversion/Utf8Path.h"
#include "finding/Quoted.h"

#include <filesystem>
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

}  // namespace satwecvt
