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

struct CNodeOnBeam {
    std::uint32_t frame;  // position of the beam among the frame elements
    std::uint32_t node;   // the lowest position of a node that lies inside it
};

/// Returns the beams inside which nodes of their story or of the model level lie. Elements of any kind that go on along
/// an element from a node inside it go to `overlaps`.
std::vector<CNodeOnBeam> FindNodesOnFrames(const CNodeList& nodes, const CFrameList& frames,
                                           const std::vector<CVector>& places, const CNodeGrid& grid,
                                           CTestBudget& budget, CPartners& overlaps);

}  // namespace satwecvt
