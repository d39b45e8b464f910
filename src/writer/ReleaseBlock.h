#pragma once

#include "model/ConversionTables.h"
#include "satwecvt/ConversionReport.h"
#include "text/OutputFile.h"

namespace satwecvt {

/// Writes the "*FRAME-RLS" block: two lines for each end release with code 2, 3 or 4, in the order of the elements.
/// Nothing at all when there is no release; other codes have no lines.
void WriteReleases(COutputFile& modelFile, const CConversionTables& tables, CWrittenCounts& counts);

}  // namespace satwecvt
