#pragma once

#include "writer/LoadBlock.h"

namespace satwecvt {

/// Writes the "*BEAMLOAD" section of a load case; without a beam load it is one empty line. A load whose story, beam or
/// node is missing is left out, and so is a trapezoid of no height. Loads of types that are not converted end here,
/// too.
void WriteBeamLoads(CLoadOutput& output, ELoadCase loadCase);

}  // namespace satwecvt
