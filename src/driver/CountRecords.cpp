#include "driver/CountRecords.h"

#include "model/SatweModel.h"

namespace satwecvt {

namespace {

std::int64_t& CounterOf(CReadCounts& counts, ELoadType type)
{
    const CLoadTraits traits = TraitsOf(type);
    if (traits.valueCount == 0) {
        return counts.otherLoads;
    }
    switch (traits.block) {
    case ELoadBlock::Nodal:
        return counts.nodalLoads;
    case ELoadBlock::Beam:
        return counts.beamLoads;
    default:
        return counts.pressureLoads;
    }
}

template <class Table>
std::int64_t Count(const Table& table)
{
    return static_cast<std::int64_t>(table.Count());
}

}  // namespace

CReadCounts CountRecords(const CSatweModel& model) noexcept
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
    model.loads.VisitTypes([&](ELoadType type) { ++CounterOf(counts, type); });
    return counts;
}

}  // namespace satwecvt
