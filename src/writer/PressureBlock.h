#pragma once

#include "model/SatweModel.h"
#include "writer/LoadCase.h"
#include "writer/OutputFile.h"
#include "writer/WrittenCounts.h"

namespace satwecvt {

/// Writes the "*PRESSURE" section of a load case: line loads along walls as vertical loads on edge 3 of the wall's
/// element, which is the edge between the ends of its first node row. Without such a line it is one empty line. A load
/// whose story or wall is missing is skipped; whether the wall was written is not asked.
void WritePressureLoads(COutputFile& modelFile, const CSatweModel& model, ELoadCase loadCase, CWrittenCounts& counts);

}  // namespace satwecvt
