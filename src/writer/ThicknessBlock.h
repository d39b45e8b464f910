#pragma once

#include "model/SatweModel.h"
#include "writer/OutputFile.h"
#include "writer/WrittenCounts.h"

namespace satwecvt {

/// Writes the "*THICKNESS" block, one line per thickness in the order of their numbers; nothing at all when there is
/// none.
void WriteThicknesses(COutputFile& modelFile, const CSatweModel& model, CWrittenCounts& counts);

}  // namespace satwecvt
