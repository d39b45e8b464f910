// What was read: the in-memory image of one SATWE model. The readers fill it; from then on nobody changes it.
#pragma once

#include "model/LoadTable.h"
#include "model/NodeRecord.h"
#include "model/RecordTable.h"
#include "model/SectionRecord.h"
#include "model/StoryRecord.h"

#include <cstdint>

namespace satwecvt {

class CSatweModel {
public:
    std::int32_t storyCount = 0;    // header, 1
    std::int32_t sectionCount = 0;  // header, 2
    std::int32_t nodeCount = 0;     // header, 3

    CRecordTable<T_SATWE_SECT_D> inputSections;  // under the structure file's section numbers
    CRecordTable<T_SATWE_STND_D> nodes;          // model-level nodes: the supports
    CRecordTable<T_SATWE_STIF_D> stories;
    CLoadTable loads;

    /// The definition of an input section; all zero when the structure file does not have it.
    T_SATWE_SECT_D InputSection(std::int32_t inputSection) const;
};

}  // namespace satwecvt
