#include "cli/Failure.h"

#include "cli/FindingLines.h"
#include "finding/Quoted.h"

#include <iostream>

namespace satwecvt {

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
    return isOpening ? "cannot be opened: " + failure.reason : failure.reason;
}

void PrintFailure(const CConversionReport& report)
{
    if (report.result == kCancelled) {
        std::cerr << "satwecvt: cancelled; nothing was written\n";
    } else if (report.failure) {
        const std::string place = PlaceText(report.paths, report.failure->place);
        std::cerr << (place.empty() ? "satwecvt: " : place) << "error: " << FailureSentence(report) << "\n";
    }
}

}  // namespace satwecvt
