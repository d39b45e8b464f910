// The in-memory image of one SATWE model. The readers fill it; the writers read it and add to its numbering tables.
#pragma once

#include "model/EndRecords.h"
#include "model/LoadRecord.h"
#include "model/MaterialRecord.h"
#include "model/NodeRecord.h"
#include "model/NumberedTable.h"
#include "model/RecordTable.h"
#include "model/SectionRecord.h"
#include "model/StoryRecord.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace satwecvt {

class CSatweModel {
public:
    std::int32_t storyCount = 0;    // header, 1
    std::int32_t sectionCount = 0;  // header, 2
    std::int32_t nodeCount = 0;     // header, 3

    CRecordTable<T_SATWE_SECT_D> inputSections;  // under the structure file's section numbers
    CRecordTable<T_SATWE_STND_D> nodes;          // model-level nodes: the supports
    CRecordTable<T_SATWE_STIF_D> stories;
    std::vector<T_SATWE_STLD_D> loads;  // in the order of the load file

    std::vector<T_SATWE_BMER_D> releases;  // in the order of the elements
    std::vector<T_SATWE_BEOF_D> offsets;   // in the order of the elements

    /// The number of a material, counted from 1 in the order of first use.
    std::int32_t FindOrAddMaterial(std::int32_t type, std::int32_t grade, std::int32_t steelGrade);

    /// The number of an input section as an element with these grades uses it, counted from 1 in the order of first
    /// use. The grades count for composite sections only. An unknown section number stands for an all-zero section.
    std::int32_t FindOrAddSection(std::int32_t inputSection, std::int32_t concreteGrade, std::int32_t steelGrade);

    /// The number of a thickness, counted from 1 in the order of first use; equality is exact.
    std::int32_t FindOrAddThickness(double value);

    /// The definition of an input section; all zero when the structure file does not have it.
    T_SATWE_SECT_D InputSection(std::int32_t inputSection) const;

    const std::vector<T_SATWE_MATL_D>& Materials() const noexcept { return materials.Entries(); }
    const std::vector<T_SATWE_SECT_D>& Sections() const noexcept { return sections.Entries(); }
    const std::vector<double>& Thicknesses() const noexcept { return thicknesses.Entries(); }

private:
    CNumberedTable<T_SATWE_MATL_D, CMaterialHash> materials;
    CNumberedTable<T_SATWE_SECT_D, CSectionHash> sections;
    CNumberedTable<double, std::hash<double>> thicknesses;
};

}  // namespace satwecvt
