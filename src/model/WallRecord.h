#pragma once

#include "model/NodeRecord.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace satwecvt {

/// The two ends of one of a wall's node rows. A wall becomes one quadrilateral through the ends of its rows, so the
/// nodes between them need not be kept.
struct CNodeRow {
    std::int32_t first = 0;
    std::int32_t last = 0;
};

/// A wall: one line of ten numbers, then one or two lines with its point list.
struct T_SATWE_STWL_D {
    std::int32_t seq = 0;                // element number
    std::int32_t firstCount = 0;         // 2: nodes in each of the two rows; the rows are empty when 0
    std::array<double, 6> wallValues{};  // 5 to 10: the second is the thickness, the last four an opening (0: none)
    CNodeRow firstListA;                 // points 0 to firstCount - 1
    CNodeRow firstListB;                 // points firstCount to 2 x firstCount - 1
    std::int32_t line = 0;               // where line 1 stands in the structure file
};

/// How far two nodes are apart in the plan.
struct CPlanDistance {
    double x;
    double y;
};

/// How far the two nodes of a wall's end are apart: 0 in a direction in which they stand one above the other. A wall is
/// written when that holds for both directions and both ends; heights do not count, and a NaN is not apart.
inline CPlanDistance DistanceAtEnd(const T_SATWE_STND_D& a, const T_SATWE_STND_D& b) noexcept
{
    constexpr double kPlanTolerance = 1e-6;  // in the unit of the coordinates
    const double dx = std::abs(a.x - b.x);
    const double dy = std::abs(a.y - b.y);
    return {dx > kPlanTolerance ? dx : 0.0, dy > kPlanTolerance ? dy : 0.0};
}

}  // namespace satwecvt
