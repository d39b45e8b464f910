// What a conversion has left out, where it would stand on the plan.
#pragma once

#include "picture/PlanDrawing.h"
#include "picture/PlanStory.h"

namespace satwecvt {

void AddLosses(CPlanDrawing& drawing, const CPlanStory& story);

}  // namespace satwecvt
