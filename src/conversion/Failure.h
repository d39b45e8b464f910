#pragma once

#include "satwecvt/ConversionReport.h"

#include <string>

namespace satwecvt {

/// What a conversion failed for when memory was too little, as the library says it.
inline constexpr const char* kOutOfMemory = "out of memory";

/// A failure that is at no place of the input.
CFailure FailureOf(const std::string& reason);

/// What a failed conversion failed for, without the place: what was needed, what was found, and the line.
std::string FailureSentence(const CConversionReport& report);

}  // namespace satwecvt
