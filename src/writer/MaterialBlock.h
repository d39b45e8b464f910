#pragma once

#include "model/SatweModel.h"
#include "writer/OutputFile.h"
#include "writer/WrittenCounts.h"

namespace satwecvt {

/// Writes the "*MATERIAL" block, one line per material in the order of their numbers; nothing at all when there is
/// none. A material of an unknown type has no line but keeps its number.
void WriteMaterials(COutputFile& modelFile, const CSatweModel& model, CWrittenCounts& counts);

}  // namespace satwecvt
