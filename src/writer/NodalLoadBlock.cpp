#include "writer/NodalLoadBlock.h"

#include "geometry/MathFunc.h"
#include "writer/WriteLine.h"

namespace satwecvt {

namespace {

constexpr bool IsNodalLoad(ELoadType type)
{
    return type == ELoadType::NodeForceMoments || type == ELoadType::NodeForces || type == ELoadType::WallForce;
}

/// The wall that a force acts on, which has to have a first node row.
const T_SATWE_STWL_D& LoadedWall(const CSatweModel& model, const T_SATWE_STLD_D& load)
{
    const T_SATWE_STIF_D* story = model.stories.Find(load.storyId);
    const T_SATWE_STWL_D* wall = story != nullptr ? story->walls.Find(load.memberId) : nullptr;
    if (wall == nullptr || wall->firstCount < 1) {
        throw CInvalidArgument("a force on a wall that does not exist or has no nodes");
    }
    return *wall;
}

void WriteForceLine(COutputFile& modelFile, std::int32_t node, double forceZ, CWrittenCounts& counts)
{
    WriteLine(modelFile, "%d, %g, %g, %g, %g, %g, %g\n", node, 0.0, 0.0, forceZ, 0.0, 0.0, 0.0);
    ++counts.nodalLoads;
}

/// Splits the force P at distance a from the first node of the wall's first row into two statically equivalent forces
/// at the ends of that row.
void WriteWallForce(COutputFile& modelFile, const CSatweModel& model, const CWrittenNodes& writtenNodes,
                    const T_SATWE_STLD_D& load, CWrittenCounts& counts)
{
    const CNodeRow& row = LoadedWall(model, load).firstListA;
    const T_SATWE_STND_D* first = writtenNodes.Find(row.first);
    const T_SATWE_STND_D* last = writtenNodes.Find(row.last);
    if (first == nullptr || last == nullptr) {
        return;
    }
    const double p = load.value[0];
    const double a = load.value[1];
    const double length = CMathFunc::Distance(first->x, first->y, first->z, last->x, last->y, last->z);
    WriteForceLine(modelFile, row.first, -((length - a) * p / length), counts);
    WriteForceLine(modelFile, row.last, -(p * a / length), counts);
}

}  // namespace

void WriteNodalLoads(COutputFile& modelFile, const CSatweModel& model, const CWrittenNodes& writtenNodes,
                     ELoadCase loadCase, CWrittenCounts& counts)
{
    bool headerWritten = false;
    for (const T_SATWE_STLD_D& load : model.loads) {
        if (!BelongsTo(loadCase, load) || !IsNodalLoad(load.loadType)) {
            continue;
        }
        if (!headerWritten) {
            WriteLine(modelFile,
                      "*CONLOAD    ; Nodal Loads\n"
                      "; NODE_LIST, FX, FY, FZ, MX, MY, MZ, GROUP\n");
            headerWritten = true;
        }
        const auto& value = load.value;
        if (load.loadType == ELoadType::WallForce) {
            WriteWallForce(modelFile, model, writtenNodes, load, counts);
        } else if (load.loadType == ELoadType::NodeForceMoments) {
            WriteLine(modelFile, "%d, %g, %g, %g, %g, %g, %g\n", load.memberId, 0.0, 0.0, -value[0], value[1], value[2],
                      0.0);
            ++counts.nodalLoads;
        } else {
            WriteLine(modelFile, "%d, %g, %g, %g, 0, 0, 0\n", load.memberId, value[1], value[2], -value[0]);
            ++counts.nodalLoads;
        }
    }
    WriteLine(modelFile, "\n");
}

}  // namespace satwecvt
