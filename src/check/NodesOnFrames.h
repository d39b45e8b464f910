// Nodes that lie on a frame element and are none of its ends.
#pragma once

#include "check/FrameList.h"
#include "check/NodeGrid.h"
#include "check/Partners.h"
#include "check/Segment.h"
#include "check/TestBudget.h"

#include <cstdint>
#include <vector>

namespace satwecvt {

/// Returns for each frame element the lowest position of a node that lies inside it, `kNone` where there is none. Only
/// beams are asked, and only about nodes of their story and of the model level. Elements of any kind that go on along
/// such an element from a node inside it go to `overlaps`.
std::vector<std::uint32_t> FindNodesOnFrames(const CNodeList& nodes, const CFrameList& frames,
                                             const std::vector<CVector>& places, const CNodeGrid& grid,
                                             CTestBudget& budget, CPartners& overlaps);

}  // namespace satwecvt
