#pragma once

#include "model/ConversionTables.h"
#include "satwecvt/ConversionReport.h"
#include "text/OutputFile.h"

#include <cstdint>

namespace satwecvt {

/// Writes the "*SECTION" block: the sections that elements use, in the order of their numbers; nothing at all when
/// there is none.
void WriteSections(COutputFile& modelFile, const CConversionTables& tables, CWrittenCounts& counts);

/// Writes the lines of one section. A kind other than 0 to 14 has none, but keeps its number.
void WriteSectionLine(COutputFile& modelFile, std::int32_t number, const T_SATWE_SECT_D& section);

}  // namespace satwecvt
