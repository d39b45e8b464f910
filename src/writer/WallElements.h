#pragma once

#include "model/StoryRecord.h"
#include "writer/ElementOutput.h"

namespace satwecvt {

/// Writes the walls of a story, each as one "WALL" line: a quadrilateral through the ends of its two node rows. A wall
/// whose ends are not vertical, or one of whose corners was never written, is left out, though its
/// thickness takes a number. An opening is dropped.
void WriteWalls(CElementOutput& output, const T_SATWE_STIF_D& story);

}  // namespace satwecvt
