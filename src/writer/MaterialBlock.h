#pragma once

#include "model/ConversionTables.h"
#include "satwecvt/ConversionReport.h"
#include "text/OutputFile.h"

namespace satwecvt {

/// Writes the "*MATERIAL" block, one line per material in the order of their numbers; nothing at all when there is
/// none. A material of an unknown type has no line but keeps its number.
void WriteMaterials(COutputFile& modelFile, const CConversionTables& tables, CWrittenCounts& counts);

}  // namespace satwecvt
