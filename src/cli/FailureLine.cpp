#include "cli/FailureLine.h"

#include "cli/FindingLines.h"
#include "cli/TerminalText.h"
#include "conversion/Failure.h"

#include <iostream>

namespace satwecvt {

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
