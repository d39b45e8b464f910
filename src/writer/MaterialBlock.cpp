#include "writer/MaterialBlock.h"

#include "model/SteelGrade.h"
#include "text/WriteLine.h"

#include <string>
#include <string_view>

namespace satwecvt {

namespace {

/// "C25" for grade 25; grade 0 stands for the default.
std::string ConcreteName(std::int32_t grade)
{
    std::string name = "C";
    name += std::to_string(grade == 0 ? 30 : grade);
    return name;
}

constexpr std::string_view SteelName(std::int32_t grade)
{
    const std::string_view name = SteelNameOf(grade);
    return name.empty() ? kDefaultSteel : name;
}

void WriteMaterialHeader(COutputFile& modelFile)
{
    WriteLine(modelFile,
              "*MATERIAL    ; Material\n"
              "; iMAT, TYPE, MNAME, SPHEAT, HEATCO, [DATA1]               ; STEEL, CONC, USER\n"
              "; iMAT, TYPE, MNAME, SPHEAT, HEATCO, [DATA2], [DATA2]      ; SRC\n"
              "; [DATA1] : 1, DB, NAME\n"
              "; [DATA1] : 2, ELAST, POISN, THERMAL, DEN\n"
              "; [DATA1] : 3, Ex, Ey, Ez, Tx, Ty, Tz, Sxy, Sxz, Syz, Pxy, Pxz, Pyz, DEN  ; Orthotropic\n"
              "; [DATA2] : 1, DB, NAME or 2, ELAST, POISN, THERMAL, DEN\n");
}

}  // namespace

void WriteMaterials(COutputFile& modelFile, const CConversionTables& tables, CWrittenCounts& counts)
{
    if (tables.Materials().empty()) {
        return;
    }
    WriteMaterialHeader(modelFile);
    std::int32_t number = 0;
    std::int32_t compositeCount = 0;  // composite materials are named in their own order: SRC1, SRC2, ...
    for (const T_SATWE_MATL_D& material : tables.Materials()) {
        ++number;
        switch (material.type) {
        case EMaterialType::Concrete:
            WriteLine(modelFile, "  %d, CONC, %s, 0, 0, 1, GB(RC), %s\n", number, ConcreteName(material.grade),
                      ConcreteName(material.grade));
            break;
        case EMaterialType::Steel:
            WriteLine(modelFile, "  %d, STEEL, %s, 0, 0, 1, GB(S), %s\n", number, SteelName(material.grade),
                      SteelName(material.grade));
            break;
        case EMaterialType::Composite:
            ++compositeCount;
            WriteLine(modelFile, "  %d, SRC, SRC%d, 0, 0, 1, GB(S), %s, 1, GB(RC), %s\n", number, compositeCount,
                      SteelName(material.steelGrade), ConcreteName(material.grade));
            break;
        default:
            break;
        }
    }
    counts.materials = number;
    WriteLine(modelFile, "\n");
}

}  // namespace satwecvt
