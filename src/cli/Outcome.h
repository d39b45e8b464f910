#pragma once

#include "satwecvt/ConversionReport.h"
#include "satwecvt/Finding.h"

#include <string>
#include <vector>

namespace satwecvt {

/// All that the program knows of a conversion when it has ended.
struct COutcome {
    CConversionReport report;
    CFindingList findings;
};

/// The lines of the message log, as the findings make them; none when there is no whole log of this conversion.
std::vector<std::string> LogLines(const COutcome& outcome);

}  // namespace satwecvt
