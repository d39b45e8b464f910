#pragma once

#include "satwecvt/ConversionReport.h"

namespace satwecvt {

/// Prints what a conversion failed for, as compilers do, or that it was cancelled. Nothing for one that did neither.
void PrintFailure(const CConversionReport& report);

}  // namespace satwecvt
