// What the writing of a model makes beside it: the numbers that properties get, and what is gathered element by element
// for the blocks that follow. One object for one model text file.
#pragma once

#include "model/EndRecords.h"
#include "model/MaterialRecord.h"
#include "model/NumberedTable.h"
#include "model/SatweModel.h"
#include "model/SectionRecord.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace satwecvt {

class CConversionTables {
public:
    /// The model has to outlive the tables, and to stay as it is.
    explicit CConversionTables(const CSatweModel& satweModel) : model(satweModel) {}

    std::vector<T_SATWE_BMER_D> releases;  // in the order of the elements
    std::vector<T_SATWE_BEOF_D> offsets;   // in the order of the elements

    /// The number of a material, counted from 1 in the order of first use.
    std::int32_t FindOrAddMaterial(EMaterialType type, std::int32_t grade, std::int32_t steelGrade);

    /// The number of an input section as an element with these grades uses it, counted from 1 in the order of first
    /// use. The grades count for composite sections only. An unknown section number stands for an all-zero section.
    std::int32_t FindOrAddSection(std::int32_t inputSection, std::int32_t concreteGrade, std::int32_t steelGrade);

    /// The number of a thickness, counted from 1 in the order of first use; equality is exact.
    std::int32_t FindOrAddThickness(double value);

    const std::vector<T_SATWE_MATL_D>& Materials() const noexcept { return materials.Entries(); }
    const std::vector<T_SATWE_SECT_D>& Sections() const noexcept { return sections.Entries(); }
    const std::vector<double>& Thicknesses() const noexcept { return thicknesses.Entries(); }

private:
    const CSatweModel& model;
    CNumberedTable<T_SATWE_MATL_D, CMaterialHash> materials;
    CNumberedTable<T_SATWE_SECT_D, CSectionHash> sections;
    CNumberedTable<double, std::hash<double>> thicknesses;
};

}  // namespace satwecvt
