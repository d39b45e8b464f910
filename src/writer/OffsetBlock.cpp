#include "writer/OffsetBlock.h"

#include "text/WriteLine.h"

namespace satwecvt {

void WriteOffsets(COutputFile& modelFile, const CConversionTables& tables, CWrittenCounts& counts)
{
    if (tables.offsets.empty()) {
        return;
    }
    WriteLine(modelFile,
              "*OFFSET    ; Beam End Offsets\n"
              "; ELEM_LIST, TYPE, RGDXi, RGDYi, RGDZi, RGDXj, RGDYj, RGDZj, GROUP  ; TYPE=GLOBAL\n"
              "; ELEM_LIST, TYPE, RGDi, RGDj, GROUP                                ; TYPE=ELEMENT\n");
    for (const T_SATWE_BEOF_D& offset : tables.offsets) {
        const auto& rgd = *offset.rgd;
        // The group behind the last comma is empty; its two blanks belong to the line.
        WriteLine(modelFile, "  %d, GLOBAL, %g, %g, %g, %g, %g, %g,  \n", offset.element, rgd[0], rgd[1], rgd[2],
                  rgd[3], rgd[4], rgd[5]);
    }
    counts.offsets = static_cast<std::int64_t>(tables.offsets.size());
    WriteLine(modelFile, "\n");
}

}  // namespace satwecvt
