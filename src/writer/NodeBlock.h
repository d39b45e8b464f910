#pragma once

#include "model/SatweModel.h"
#include "satwecvt/ConversionReport.h"
#include "text/OutputFile.h"
#include "writer/WrittenNodes.h"

namespace satwecvt {

/// Writes the "*NODE" block: the model-level nodes in key order, then story by story the story's nodes in key order.
/// Nothing at all when no node is announced. Fills `writtenNodes`.
void WriteNodes(COutputFile& modelFile, const CSatweModel& model, CWrittenNodes& writtenNodes, CWrittenCounts& counts);

}  // namespace satwecvt
