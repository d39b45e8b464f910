#pragma once

#include "model/ConversionTables.h"
#include "satwecvt/ConversionReport.h"
#include "text/OutputFile.h"

namespace satwecvt {

/// Writes the "*OFFSET" block: one line per end offset, in the order of the elements; nothing at all when there is
/// none.
void WriteOffsets(COutputFile& modelFile, const CConversionTables& tables, CWrittenCounts& counts);

}  // namespace satwecvt
