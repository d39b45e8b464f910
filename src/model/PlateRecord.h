#pragma once

#include <cstdint>
#include <vector>

namespace satwecvt {

/// A plate (slab): one logical line of at least four numbers.
struct T_SATWE_STPL_D {
    std::int32_t seq = 0;                // element number of the first triangle
    std::int32_t vertexCount = 0;        // 2
    double thickness = 0.0;              // 4
    std::vector<std::int32_t> vertices;  // 5 and on: node numbers of the outline, in order
};

}  // namespace satwecvt
