// What is drawn around every plan of a building: the border, the overall dimensions, the directions of the axes and a
// scale bar.
#pragma once

#include "picture/PlanModel.h"
#include "picture/PlanScale.h"
#include "picture/SvgText.h"

namespace satwecvt {

void AddBorder(CSvgText& svg, const CPlanScale& scale);

/// From node to node, in lengths of the model, below and to the left of the plan.
void AddDimensions(CSvgText& svg, const CPlanScale& scale, const CPlanModel& model);

void AddAxes(CSvgText& svg, const CPlanScale& scale);
void AddScaleBar(CSvgText& svg, const CPlanScale& scale);

}  // namespace satwecvt
