#pragma once

#include "model/FrameRecords.h"
#include "model/NodeRecord.h"
#include "model/PlateRecord.h"
#include "model/RecordTable.h"
#include "model/WallRecord.h"

#include <array>
#include <cstdint>
#include <vector>

namespace satwecvt {

/// A story: four lines of its own, then the blocks of its nodes and members. The counts are those that story line 4
/// announces; the writers go by them.
struct T_SATWE_STIF_D {
    std::int32_t storyNo = 0;  // line 1, 2: quoted in the message log

    /// Line 3, 1 to 5. Truncated, the second is the material grade of beams and braces, the third of columns, the
    /// fourth of walls, the fifth of plates.
    std::array<double, 5> storyValues{};
    std::int32_t storyExtra = 0;  // line 3, 6: the steel grade

    std::int32_t nodeCount = 0;    // line 4, 1
    std::int32_t beamCount = 0;    // line 4, 2
    std::int32_t columnCount = 0;  // line 4, 3
    std::int32_t braceCount = 0;   // line 4, 4
    std::int32_t wallCount = 0;    // line 4, 5
    std::int32_t plateCount = 0;   // line 4, 6

    CRecordTable<T_SATWE_STND_D> nodes;
    CRecordTable<T_SATWE_STBM_D> beams;
    CRecordTable<T_SATWE_STCL_D> columns;
    CRecordTable<T_SATWE_STBR_D> braces;
    CRecordTable<T_SATWE_STWL_D> walls;
    CRecordTable<T_SATWE_STPL_D> plates;

    std::vector<CBeamExtra> beamExtras;       // in the order of the file, as the beams refer to them
    std::vector<std::int32_t> plateVertices;  // the same of the plates
};

}  // namespace satwecvt
