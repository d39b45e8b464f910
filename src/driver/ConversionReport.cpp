#include "driver/ConversionReport.h"

#include "model/SatweModel.h"

namespace satwecvt {

namespace {

std::int64_t& CounterOf(CReadCounts& counts, ELoadType type)
{
    switch (type) {
    case ELoadType::BeamForce:
    case ELoadType::BeamLinear:
    case ELoadType::BeamTriangle:
    case ELoadType::BeamTrapezoid:
        return counts.beamLoads;
    case ELoadType::NodeForceMoments:
    case ELoadType::NodeForces:
    case ELoadType::WallForce:
        return counts.nodalLoads;
    case ELoadType::WallLine:
        return counts.pressureLoads;
    default:
        return counts.otherLoads;
    }
}

template <class Table>
std::int64_t Count(const Table& table)
{
    return static_cast<std::int64_t>(table.Count());
}

}  // namespace

CReadCounts CountRecords(const CSatweModel& model)
{
    CReadCounts counts;
    counts.stories = Count(model.stories);
    counts.sections = Count(model.inputSections);
    counts.nodes = Count(model.nodes);
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        counts.nodes += Count(story.nodes);
        counts.beams += Count(story.beams);
        counts.columns += Count(story.columns);
        counts.braces += Count(story.braces);
        counts.walls += Count(story.walls);
        counts.plates += Count(story.plates);
    }
    for (const T_SATWE_STLD_D& load : model.loads) {
        ++CounterOf(counts, load.loadType);
    }
    return counts;
}

}  // namespace satwecvt
