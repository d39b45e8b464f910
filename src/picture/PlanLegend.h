#pragma once

#include "picture/PlanLayers.h"
#include "picture/PlanScale.h"
#include "picture/SvgText.h"

namespace satwecvt {

/// Names the look of every layer that is used, at the top of the column of the title block.
void AddLegend(CSvgText& svg, const CPlanScale& scale, const CPlanLayers& layers);

}  // namespace satwecvt
