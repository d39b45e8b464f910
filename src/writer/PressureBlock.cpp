#include "writer/PressureBlock.h"

#include "writer/WriterFindings.h"

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

void WritePressureLoad(CLoadOutput& output, CLoadBlock& block, const T_SATWE_STLD_D& load)
{
    const T_SATWE_STIF_D* story = output.model.stories.Find(load.storyId);
    const T_SATWE_STWL_D* wall = story != nullptr ? story->walls.Find(load.memberId) : nullptr;
    if (wall == nullptr) {
        const EFinding code = story == nullptr ? EFinding::LoadStoryMissing : EFinding::LoadWallMissing;
        output.findings.Tell(LoadFinding(code, load, EObject::Wall, story));
        return;
    }
    block.NeedHeader();
    WriteLine(output.modelFile, "%d, PRES, PLATE, EDGE, 3, GZ, 0, 0, 0, %g, 0, 0,\n", wall->seq, -load.value[0]);
    ++output.counts.pressureLoads;
    if (output.lostWalls.contains(wall)) {
        CFinding finding = LoadFinding(EFinding::LoadOnLostWall, load, EObject::Wall, story);
        finding.element = wall->seq;
        output.findings.Tell(finding);
    }
}

}  // namespace

void WritePressureLoads(CLoadOutput& output, ELoadCase loadCase)
{
    CLoadBlock block(output, WritePressureHeader);
    block.Write(
        loadCase, [](ELoadBlock taken) { return taken == ELoadBlock::Pressure; },
        [&](const T_SATWE_STLD_D& load) { WritePressureLoad(output, block, load); });
}

}  // namespace satwecvt
