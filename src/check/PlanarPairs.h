// Walls, and slabs, that have their nodes in common.
#pragma once

#include "check/PlanarElements.h"
#include "model/SatweModel.h"
#include "satwecvt/Finding.h"

namespace satwecvt {

/// Tells every wall that has the four corner nodes of an earlier wall, in whatever order, and every slab whose
/// triangles have the nodes of those of an earlier slab, one by one. A triangle alone can be the fold of a slab with an
/// inward corner, whose fan reaches over its edge. Each is told once, of the earliest such element, at its own element
/// with these nodes. Nodes of two numbers at one place are not the same.
void TellPlanarPairs(const CSatweModel& model, const CPlanarElements& planarElements, CFindingListener& listener);

}  // namespace satwecvt
