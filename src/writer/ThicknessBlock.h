#pragma once

#include "model/ConversionTables.h"
#include "satwecvt/ConversionReport.h"
#include "text/OutputFile.h"

namespace satwecvt {

/// Writes the "*THICKNESS" block, one line per thickness in the order of their numbers; nothing at all when there is
/// none.
void WriteThicknesses(COutputFile& modelFile, const CConversionTables& tables, CWrittenCounts& counts);

}  // namespace satwecvt
