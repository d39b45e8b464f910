// Walls, and slabs, that have their nodes in common.
#pragma once

#include "check/PlanarElements.h"
#include "model/SatweModel.h"
#include "satwecvt/Finding.h"

namespace satwecvt {

/// Tells every wall that has the four corner nodes of an earlier wall, and every slab that has the corner nodes of an
/// earlier slab, in whatever order. A triangle alone can be the fold of a slab with an inward corner, whose fan reaches
/// over its edge. Each is told once, of the first element of the earliest, at its own element with the nodes of that
/// one, or at its first. Nodes of two numbers at one place are not the same.
void TellPlanarPairs(const CSatweModel& model, const CPlanarElements& planarElements, CFindingListener& listener);

}  // namespace satwecvt
