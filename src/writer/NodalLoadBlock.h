#pragma once

#include "writer/LoadBlock.h"

namespace satwecvt {

/// Writes the "*CONLOAD" section of a load case: node loads, and forces on walls split onto the two ends of the wall's
/// first node row. Without such a load it is one empty line. A force on a wall that does not exist or has no nodes is
/// the invalid-argument failure; one whose end nodes were never written is left out.
void WriteNodalLoads(CLoadOutput& output, ELoadCase loadCase);

}  // namespace satwecvt
