#pragma once

#include <cstdint>

namespace satwecvt {

/// A plate (slab): one logical line of at least four numbers.
struct T_SATWE_STPL_D {
    std::int32_t seq = 0;          // element number of the first triangle
    std::int32_t vertexCount = 0;  // 2
    double thickness = 0.0;        // 4

    // 5 and on: node numbers of the outline, in order. They stand among the story's `plateVertices`, as many as the
    // line has, but no more than it announces.
    std::uint32_t firstVertex = 0;
    std::int32_t storedVertices = 0;
    std::int32_t line = 0;  // where its first physical line stands in the structure file
};

}  // namespace satwecvt
