#include "check/LoadedObject.h"

#include "model/Int32.h"

#include <cmath>
#include <limits>

namespace satwecvt {

namespace {

CPoint PlaceOf(const T_SATWE_STND_D& node)
{
    return {Exactly(node.x), Exactly(node.y), Exactly(node.z)};
}

/// Lengths are computed up to here; not much farther out their squares leave the range of doubles, or those of what six
/// digits leave open.
bool IsFarOut(const T_SATWE_STND_D& node)
{
    constexpr double kFarthest = 1e150;
    return !(std::abs(node.x) <= kFarthest && std::abs(node.y) <= kFarthest && std::abs(node.z) <= kFarthest);
}

}  // namespace

CLoadedObjects::CLoadedObjects(const CSatweModel& satweModel) : model(satweModel), lastStory(satweModel.stories.Find(0))
{
    const auto add = [this](const CRecordTable<T_SATWE_STND_D>& table) {
        for (const T_SATWE_STND_D& node : table.Records()) {
            nodes.Insert(node.number, &node);
        }
    };
    std::size_t count = model.nodes.Count();
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        count += story.nodes.Count();
    }
    nodes.Reserve(count);
    add(model.nodes);
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        add(story.nodes);
    }
    nodes.SortByKey();
}

/// Loads of one block follow each other.
const T_SATWE_STIF_D* CLoadedObjects::StoryOf(std::int32_t block)
{
    if (block != lastBlock) {
        lastBlock = block;
        lastStory = model.stories.Find(block);
    }
    return lastStory;
}

std::optional<CBounded> CLoadedObjects::LengthBetween(std::int32_t first, std::int32_t last) const
{
    const T_SATWE_STND_D* const* a = nodes.Find(first);
    const T_SATWE_STND_D* const* b = nodes.Find(last);
    if (a == nullptr || b == nullptr) {
        return std::nullopt;
    }
    if (IsFarOut(**a) || IsFarOut(**b)) {
        return Exactly(std::numeric_limits<double>::infinity());
    }
    return Distance(PlaceOf(**a), PlaceOf(**b));
}

CLoadedObject CLoadedObjects::Find(const T_SATWE_STLD_D& load)
{
    const T_SATWE_STIF_D* story = StoryOf(load.storyId);
    CLoadedObject object;
    if (story == nullptr) {
        return object;
    }
    switch (load.loadType) {
    case ELoadType::BeamForce:
    case ELoadType::BeamLinear:
    case ELoadType::BeamTriangle:
    case ELoadType::BeamTrapezoid:
        object.beam = story->beams.Find(load.memberId);
        if (object.beam != nullptr) {
            object.length = LengthBetween(WrappedAbs(object.beam->nodeI), WrappedAbs(object.beam->nodeJ));
        }
        break;
    case ELoadType::WallForce:
    case ELoadType::WallLine:
        object.wall = story->walls.Find(load.memberId);
        if (object.wall != nullptr) {
            object.length = LengthBetween(object.wall->firstListA.first, object.wall->firstListA.last);
        }
        break;
    default:
        break;
    }
    return object;
}

}  // namespace satwecvt
