// Where the nodes are, for whoever measures: in a box of which the longest edge is 1. So no distance overflows, however
// far apart the coordinates of a file are.
#pragma once

#include "check/HangingParts.h"
#include "check/NodeList.h"
#include "check/Segment.h"

#include <vector>

namespace satwecvt {

/// The places of the nodes, by position. Those that no element uses, that are not there or have a coordinate that is no
/// finite number are at no place: their coordinates are NaN.
std::vector<CVector> PlacesOf(const CNodeList& nodes, const CFrameList& frames, const CHangingParts& parts);

inline bool HasPlace(const CVector& place)
{
    return !std::isnan(place.x);
}

}  // namespace satwecvt
