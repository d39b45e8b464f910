#pragma once

#include "model/SatweModel.h"
#include "writer/LoadCase.h"
#include "writer/OutputFile.h"
#include "writer/WrittenCounts.h"
#include "writer/WrittenNodes.h"

namespace satwecvt {

/// Writes the "*BEAMLOAD" section of a load case; without a beam load it is one empty line. A load whose story, beam or
/// node is missing is skipped. A trapezoid of no height is left out with a message.
void WriteBeamLoads(COutputFile& modelFile, COutputFile& messageFile, const CSatweModel& model,
                    const CWrittenNodes& writtenNodes, ELoadCase loadCase, CWrittenCounts& counts);

}  // namespace satwecvt
