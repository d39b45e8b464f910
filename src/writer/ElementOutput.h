#pragma once

#include "model/ConversionTables.h"
#include "model/SatweModel.h"
#include "satwecvt/ConversionReport.h"
#include "satwecvt/Finding.h"
#include "text/OutputFile.h"
#include "writer/LostWalls.h"
#include "writer/WrittenNodes.h"

#include <cstdint>

namespace satwecvt {

/// What the writers of the element kinds share.
struct CElementOutput {
    COutputFile& modelFile;
    CFindingListener& findings;
    const CSatweModel& model;
    const CWrittenNodes& writtenNodes;
    CConversionTables& tables;
    CLostWalls& lostWalls;
    CWrittenCounts& counts;
    std::int32_t elementsWritten = 0;  // 1 once the block has begun; the last field of every wall line
};

}  // namespace satwecvt
