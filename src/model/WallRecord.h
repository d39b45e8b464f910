#pragma once

#include <array>
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

}  // namespace satwecvt
