#include "writer/ReleaseBlock.h"

#include "text/WriteLine.h"

#include <string_view>

namespace satwecvt {

void WriteReleases(COutputFile& modelFile, const CConversionTables& tables, CWrittenCounts& counts)
{
    if (tables.releases.empty()) {
        return;
    }
    WriteLine(modelFile,
              "*FRAME-RLS    ; Beam End Release\n"
              "; ELEM_LIST, FLAG-i, Fxi, Fyi, Fzi, Mxi, Myi, Mzi        ; 1st line\n"
              ";            FLAG-j, Fxj, Fyj, Fzj, Mxj, Myj, Mzj, GROUP ; 2nd line\n");
    // Fx, Fy, Fz, Mx, My, Mz: a hinge frees both bending moments.
    constexpr std::string_view kHinge = "000011";
    constexpr std::string_view kFixed = "000000";
    for (const T_SATWE_BMER_D& release : tables.releases) {
        if (release.code < 2 || release.code > 4) {
            continue;
        }
        WriteLine(modelFile, "  %d, %s, 0, 0, 0, 0, 0, 0\n", release.element, release.code != 3 ? kHinge : kFixed);
        WriteLine(modelFile, "      %s, 0, 0, 0, 0, 0, 0,\n", release.code != 2 ? kHinge : kFixed);
        ++counts.releases;
    }
    WriteLine(modelFile, "\n");
}

}  // namespace satwecvt
