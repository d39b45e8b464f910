#pragma once

#include "model/SatweModel.h"
#include "writer/OutputFile.h"
#include "writer/WrittenCounts.h"

namespace satwecvt {

/// Writes the "*OFFSET" block: one line per end offset, in the order of the elements; nothing at all when there is
/// none.
void WriteOffsets(COutputFile& modelFile, const CSatweModel& model, CWrittenCounts& counts);

}  // namespace satwecvt
