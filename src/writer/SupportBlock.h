#pragma once

#include "model/SatweModel.h"
#include "satwecvt/ConversionReport.h"
#include "text/OutputFile.h"

namespace satwecvt {

/// Writes the "*CONSTRAINT" block: every model-level node, in key order, fixed in all six degrees of freedom. Nothing
/// at all when no such node is announced. More nodes than announced are the invalid-argument failure.
void WriteSupports(COutputFile& modelFile, const CSatweModel& model, CWrittenCounts& counts);

}  // namespace satwecvt
