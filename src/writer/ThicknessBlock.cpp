#include "writer/ThicknessBlock.h"

#include "text/WriteLine.h"

namespace satwecvt {

void WriteThicknesses(COutputFile& modelFile, const CConversionTables& tables, CWrittenCounts& counts)
{
    if (tables.Thicknesses().empty()) {
        return;
    }
    // "SIZE2, SIZE2" of the user-defined xz rib belongs to the block as the host knows it.
    WriteLine(modelFile,
              "*THICKNESS    ; Thickness\n"
              "; iTHK, TYPE, bSAME, THIK-IN, THIK-OUT                 ; TYPE=VALUE\n"
              "; iTHK, TYPE, SUBTYPE, RPOS, WEIGHT                    ; TYPE=STIFFENED, SUBTYPE=VALUE\n"
              ";       SHAPE, THIK-IN, THIK-OUT, HU, HL               ;      for yz section\n"
              ";       SHAPE, THIK-IN, THIK-OUT, HU, HL               ;      for xz section\n"
              "; iTHK, TYPE, SUBTYPE, RPOS, PLATETHIK                 ; TYPE=STIFFENED, SUBTYPE=USER\n"
              ";       bRIB {, SHAPE, DIST, SIZE1, SIZE2, ..., SIZE6} ;      for yz section\n"
              ";       bRIB {, SHAPE, DIST, SIZE2, SIZE2, ..., SIZE6} ;      for xz section\n"
              "; iTHK, TYPE, SUBTYPE, RPOS, PLATETHIK, DBNAME         ; TYPE=STIFFENED, SUBTYPE=DB\n"
              ";       bRIB {, SHAPE, DIST, SNAME}                    ;      for yz section\n"
              ";       bRIB {, SHAPE, DIST, SNAME}                    ;      for xz section\n");
    std::int32_t number = 0;
    for (const double thickness : tables.Thicknesses()) {
        WriteLine(modelFile, "  %d, VALUE, YES, %g, 0\n", ++number, thickness);
    }
    counts.thicknesses = number;
    WriteLine(modelFile, "\n");
}

}  // namespace satwecvt
