// What a conversion says that it lost, held against the lines that it wrote.
#pragma once

#include "model/SatweModel.h"
#include "support/Conversion.h"

#include <memory>
#include <string>

namespace satwecvt {

/// The model of a conversion whose input files are still there. Throws std::logic_error when they cannot be read.
std::shared_ptr<const CSatweModel> ReadAgain(CMemoryFiles& files);

/// The kinds whose records, less the findings about what is lost of them, are not the lines of a model that was
/// written, a line each; empty when nothing is lost without a word.
std::string BrokenCounts(const CSatweModel& input, const CConversionResult& conversion);

}  // namespace satwecvt
