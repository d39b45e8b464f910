#pragma once

#include "writer/LoadBlock.h"

namespace satwecvt {

/// Writes the "*PRESSURE" section of a load case: line loads along walls as vertical loads on edge 3 of the wall's
/// element, which is the edge between the ends of its first node row. Without such a line it is one empty line. A load
/// whose story or wall is missing is left out; one on a wall that was left out is written all the same.
void WritePressureLoads(CLoadOutput& output, ELoadCase loadCase);

}  // namespace satwecvt
