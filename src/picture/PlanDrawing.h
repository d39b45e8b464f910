// What the parts of a plan draw with, and onto.
#pragma once

#include "picture/Picture.h"
#include "picture/PlanLabels.h"
#include "picture/PlanLayers.h"
#include "picture/PlanModel.h"
#include "picture/PlanScale.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace satwecvt {

struct CPlanDrawing {
    const CPicture& picture;
    const CPlanModel& model;
    const CPlanScale& scale;
    CPlanLayers layers;
    CPlanLabels labels;
    std::size_t notDrawn = 0;  // elements and losses without a place
};

/// The id of an element in the plan, "e123".
inline std::string ElementId(std::int32_t number)
{
    return "e" + std::to_string(number);
}

inline CPlanPoint PlanOf(const CPicturePoint& point) noexcept
{
    return {point.x, point.y};
}

}  // namespace satwecvt
