// Walls and slabs on a plan.
#pragma once

#include "picture/PlanDrawing.h"

#include <cstddef>
#include <span>

namespace satwecvt {

/// Adds the planar elements at these positions: walls as bands of their thickness, slabs as their outlines.
void AddAreas(CPlanDrawing& drawing, std::span<const std::size_t> positions);

}  // namespace satwecvt
