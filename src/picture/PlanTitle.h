// The title block of a plan: what it shows, of which file, at which scale, and how much of it there is.
#pragma once

#include "picture/PlanDrawing.h"
#include "picture/PlanStory.h"
#include "picture/SvgText.h"

#include <cstddef>

namespace satwecvt {

/// Stands at the lower end of the column beside the plan. `withoutStory` is the number of elements on no plan.
void AddTitleBlock(CSvgText& svg, const CPlanDrawing& drawing, const CPictureStory& story, const CPlanStory& content,
                   std::size_t withoutStory);

}  // namespace satwecvt
