// Nodes of different numbers at one place.
#pragma once

#include "check/FrameList.h"
#include "check/NodeGrid.h"
#include "check/TestBudget.h"
#include "satwecvt/Finding.h"

#include <cstdint>
#include <vector>

namespace satwecvt {

/// For each position the lowest one at the same place, which may be itself.
std::vector<std::uint32_t> FirstAtPlace(const CNodeList& nodes, const CFrameList& frames, const CNodeGrid& grid,
                                        CTestBudget& budget);

/// Tells the nodes that are not the first at their place.
void TellCoincidentNodes(const CSatweModel& model, const CNodeList& nodes,
                         const std::vector<std::uint32_t>& firstAtPlace, CFindingListener& listener);

}  // namespace satwecvt
