// Frame elements that have both ends in common.
#pragma once

#include "check/FrameList.h"
#include "check/Partners.h"
#include "check/Segment.h"

#include <cstdint>
#include <vector>

namespace satwecvt {

/// Finds the elements that share both ends: those of one kind between the same nodes go to `sameNodes`, others, of two
/// kinds or by nodes that are at one place, to `overlaps`. Both are given by position: the places of nodes, and the
/// first node at each one's place.
void FindFramePairs(const CFrameList& frames, const std::vector<CVector>& places,
                    const std::vector<std::uint32_t>& firstAtPlace, CPartners& sameNodes, CPartners& overlaps);

}  // namespace satwecvt
