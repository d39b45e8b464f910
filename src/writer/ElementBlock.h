// The "*ELEMENT" block: story by story its beams, columns, braces, walls and plates, each kind in key order. While they
// are written, materials, sections, thicknesses, end releases and end offsets are gathered in the tables for the blocks
// that follow.
#pragma once

#include "writer/ElementOutput.h"

namespace satwecvt {

/// Writes the block; nothing at all when the stories announce no member. A count that promises more members than there
/// are is the invalid-argument failure.
void WriteElements(CElementOutput& output);

}  // namespace satwecvt
