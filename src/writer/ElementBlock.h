// The "*ELEMENT" block: story by story its beams, columns, braces, walls and plates, each kind in key order. While they
// are written, materials, sections, thicknesses, end releases and end offsets are gathered in the model for the blocks
// that follow.
#pragma once

#include "model/SatweModel.h"
#include "writer/OutputFile.h"
#include "writer/WrittenCounts.h"
#include "writer/WrittenNodes.h"

#include <cstdint>

namespace satwecvt {

/// What the writers of the element kinds share.
struct CElementOutput {
    COutputFile& modelFile;
    COutputFile& messageFile;
    CSatweModel& model;
    const CWrittenNodes& writtenNodes;
    CWrittenCounts& counts;
    std::int32_t elementsWritten = 0;  // 1 once the block has begun; the last field of every wall line
};

/// Writes the block; nothing at all when the stories announce no member. A count that promises more members than there
/// are is the invalid-argument failure.
void WriteElements(CElementOutput& output);

}  // namespace satwecvt
