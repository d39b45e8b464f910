// The outline of a slab that is told by its triangles.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace satwecvt {

/// The corners of a triangle, or of a loop, by their node numbers.
using CSlabTriangle = std::array<std::int32_t, 3>;
using CSlabLoop = std::vector<std::int32_t>;

/// The closed loops of those edges that no two triangles pass in opposite directions. Takes n log n time.
std::vector<CSlabLoop> SlabOutline(std::span<const CSlabTriangle> triangles);

}  // namespace satwecvt
