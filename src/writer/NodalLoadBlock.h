#pragma once

#include "model/SatweModel.h"
#include "writer/LoadCase.h"
#include "writer/OutputFile.h"
#include "writer/WrittenCounts.h"
#include "writer/WrittenNodes.h"

namespace satwecvt {

/// Writes the "*CONLOAD" section of a load case: node loads, and forces on walls split onto the two ends of the wall's
/// first node row. Without such a load it is one empty line. A force on a wall that does not exist or has no nodes is
/// the invalid-argument failure; one whose end nodes were never written is skipped.
void WriteNodalLoads(COutputFile& modelFile, const CSatweModel& model, const CWrittenNodes& writtenNodes,
                     ELoadCase loadCase, CWrittenCounts& counts);

}  // namespace satwecvt
