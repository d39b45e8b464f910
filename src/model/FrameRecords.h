// Beams, columns and braces. The numbers on the right are the positions in the member's input line; number 1 is the
// key in the story's table, and positions that are not named are read by nobody. `line` is where the member's first
// line stands in the structure file.
#pragma once

#include <array>
#include <cstdint>

namespace satwecvt {

/// A beam: one line of seven numbers, and an extra line when an end node is negative.
struct T_SATWE_STBM_D {
    std::int32_t seq = 0;    // element number
    std::int32_t nodeI = 0;  // 2: negative marks an end with an offset; the absolute value is the node number
    std::int32_t nodeJ = 0;  // 3
    std::int32_t c3 = 0;     // 4: section number of the structure file
    std::int32_t c4 = 0;     // 5: end-release code; its last decimal digit counts
    std::int32_t line = 0;
    double d6 = 0.0;  // 7: rotation angle in degrees

    /// Whether its extra line was read.
    bool HasExtra() const noexcept { return nodeI < 0 || nodeJ < 0; }
};

/// The extra line of a beam.
struct CBeamExtra {
    std::int32_t seq = 0;             // the beam's
    std::array<double, 6> offsets{};  // 1 to 6: end offsets, x, y, z of end i and then of end j
};

/// A column: one line of seven numbers, and an extra line when an end node is negative.
struct T_SATWE_STCL_D {
    std::int32_t seq = 0;         // element number; the upper piece of a split column has seq + 1
    std::int32_t nodeI = 0;       // 2
    std::int32_t nodeJ = 0;       // 3
    std::int32_t c3 = 0;          // 4: section number of the structure file
    std::int32_t c4 = 0;          // 5: end-release code; its last decimal digit counts
    std::int32_t hasExtra = 0;    // 1 when the extra line was read: the column is split
    std::int32_t extraValue = 0;  // extra line 2: number of the node at which it is split
    std::int32_t line = 0;
    double d6 = 0.0;  // 7: rotation angle in degrees
};

/// A brace: one line of seven numbers.
struct T_SATWE_STBR_D {
    std::int32_t seq = 0;    // element number
    std::int32_t nodeI = 0;  // 2
    std::int32_t nodeJ = 0;  // 3
    std::int32_t c3 = 0;     // 4: section number of the structure file
    std::int32_t c4 = 0;     // 5: end-release code, used whole
    std::int32_t line = 0;
    double d6 = 0.0;  // 7: rotation angle in degrees
};

}  // namespace satwecvt
