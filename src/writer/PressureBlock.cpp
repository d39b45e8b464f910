#include "writer/PressureBlock.h"

#include "writer/WriteLine.h"

namespace satwecvt {

namespace {

void WritePressureHeader(COutputFile& modelFile)
{
    WriteLine(
        modelFile,
        "*PRESSURE    ; Pressure Loads\n"
        "; ELEM_LIST, CMD, ETYP, LTYP, DIR, VX, VY, VZ, bPROJ, PU, P1, P2, P3, P4, GROUP  ; ETYP=PLATE, LTYP=FACE\n"
        "; ELEM_LIST, CMD, ETYP, LTYP, iEDGE, DIR, VX, VY, VZ, PU, P1, P2, GROUP          ; ETYP=PLATE, LTYP=EDGE\n"
        "; ELEM_LIST, CMD, ETYP, iEDGE, DIR, VX, VY, VZ, PU, P1, P2, GROUP                ; ETYP=PLANE\n"
        "; ELEM_LIST, CMD, ETYP, iFACE, DIR, VX, VY, VZ, bPROJ, PU, P1, P2, P3, P4, GROUP ; ETYP=SOLID\n"
        "; [PLATE] : plate, plane stress, wall, [PLANE] : axisymmetric, plane strain\n");
}

}  // namespace

void WritePressureLoads(COutputFile& modelFile, const CSatweModel& model, ELoadCase loadCase, CWrittenCounts& counts)
{
    bool headerWritten = false;
    for (const T_SATWE_STLD_D& load : model.loads) {
        if (!BelongsTo(loadCase, load) || load.loadType != ELoadType::WallLine) {
            continue;
        }
        const T_SATWE_STIF_D* story = model.stories.Find(load.storyId);
        const T_SATWE_STWL_D* wall = story != nullptr ? story->walls.Find(load.memberId) : nullptr;
        if (wall == nullptr) {
            continue;
        }
        if (!headerWritten) {
            WritePressureHeader(modelFile);
            headerWritten = true;
        }
        WriteLine(modelFile, "%d, PRES, PLATE, EDGE, 3, GZ, 0, 0, 0, %g, 0, 0,\n", wall->seq, -load.value[0]);
        ++counts.pressureLoads;
    }
    WriteLine(modelFile, "\n");
}

}  // namespace satwecvt
