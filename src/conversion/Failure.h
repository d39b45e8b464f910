#pragma once

#include "satwecvt/ConversionReport.h"

#include <string>

namespace satwecvt {

/// A failure that is at no place of the input.
CFailure FailureOf(const std::string& reason);

/// What a failed conversion failed for, without the place: what was needed, what was found, and the line.
std::string FailureSentence(const CConversionReport& report);

}  // namespace satwecvt
