// Beams, columns and braces as "BEAM" lines of the element block.
#pragma once

#include "model/StoryRecord.h"
#include "writer/ElementOutput.h"

namespace satwecvt {

/// One line per beam. The last digit of its release code, when above 1, becomes an end release, its extra line an end
/// offset.
void WriteBeams(CElementOutput& output, const T_SATWE_STIF_D& story);

/// One line per column, two for a column that is split at an intermediate node. The last digit of its release code,
/// when above 1, becomes an end release; on a split column that of the piece that owns the end.
void WriteColumns(CElementOutput& output, const T_SATWE_STIF_D& story);

/// One line per brace. Its release code, when above 1, becomes an end release as it stands.
void WriteBraces(CElementOutput& output, const T_SATWE_STIF_D& story);

}  // namespace satwecvt
