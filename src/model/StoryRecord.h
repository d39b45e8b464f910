#pragma once

#include "model/FrameRecords.h"
#include "model/Int32.h"
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
    std::int32_t key = 0;      // line 1, 1: the key under which the model holds the story
    std::int32_t storyNo = 0;  // line 1, 2: quoted in the message log
    std::int32_t line = 0;     // where line 1 stands in the structure file

    std::array<double, 5> storyValues{};  // line 3, 1 to 5: a number that nothing reads, and four concrete grades
    std::int32_t storyExtra = 0;          // line 3, 6: the steel grade

    std::int32_t BeamGrade() const noexcept { return TruncateToInt32(storyValues[1]); }
    std::int32_t BraceGrade() const noexcept { return TruncateToInt32(storyValues[1]); }
    std::int32_t ColumnGrade() const noexcept { return TruncateToInt32(storyValues[2]); }
    std::int32_t WallGrade() const noexcept { return TruncateToInt32(storyValues[3]); }
    std::int32_t PlateGrade() const noexcept { return TruncateToInt32(storyValues[4]); }
    std::int32_t SteelGrade() const noexcept { return storyExtra; }

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

    std::vector<CBeamExtra> beamExtras;       // in the order of the file, in which their `seq` counts up
    std::vector<std::int32_t> plateVertices;  // in the order of the file, as the plates refer to them

    /// The end offsets of a beam; null when it has none.
    const std::array<double, 6>* OffsetsOf(const T_SATWE_STBM_D& beam) const noexcept;
};

}  // namespace satwecvt
