// Beams of a story that cross without a common node.
#pragma once

#include "check/FrameList.h"
#include "check/Partners.h"
#include "check/Segment.h"
#include "check/TestBudget.h"

#include <vector>

namespace satwecvt {

/// Finds the beams that cross in a place that is an end of neither. The places are those of the nodes, by position.
void FindBeamCrossings(const CSatweModel& model, const CFrameList& frames, const std::vector<CVector>& places,
                       CTestBudget& budget, CPartners& crossings);

}  // namespace satwecvt
