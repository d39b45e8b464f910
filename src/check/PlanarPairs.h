// Walls, and slabs, that have their nodes in common.
#pragma once

#include "check/NodeList.h"
#include "check/PlanarElements.h"
#include "model/SatweModel.h"
#include "satwecvt/Finding.h"

namespace satwecvt {

/// Tells every wall that has the four corner nodes of an earlier wall, in whatever order, and every slab that has a
/// triangle with the three nodes of a triangle of an earlier slab. Each is told once, of the earliest such element, at
/// its own element with these nodes. Nodes of two numbers at one place are not the same.
void TellPlanarPairs(const CSatweModel& model, const CNodeList& nodes, const CPlanarElements& planarElements,
                     CFindingListener& listener);

}  // namespace satwecvt
