#include "check/PlanarElements.h"

#include "check/LookFinding.h"

#include <algorithm>
#include <cstddef>

namespace satwecvt {

namespace {

bool HasAllNodes(const CPlanar& element)
{
    return std::find(element.nodes.begin(), element.nodes.end(), kNone) == element.nodes.end();
}

bool StandsUpright(const T_SATWE_STND_D& a, const T_SATWE_STND_D& b)
{
    const auto [dx, dy] = DistanceAtEnd(a, b);
    return dx == 0.0 && dy == 0.0;
}

CTriangleEdges::CVector Difference(const T_SATWE_STND_D& to, const T_SATWE_STND_D& from)
{
    return {to.x - from.x, to.y - from.y, to.z - from.z};
}

/// The first element number of a wall or plate.
std::int32_t FirstNumber(const CSatweModel& model, const CElementName& name)
{
    const T_SATWE_STIF_D& story = StoryOf(model, name.level);
    return name.kind == EObject::Wall ? story.walls.At(name.record).seq : story.plates.At(name.record).seq;
}

}  // namespace

CPlanarElements::CPlanarElements(const CSatweModel& satweModel, const CNodeList& nodeList) : nodes(nodeList)
{
    std::size_t atMost = 0;
    for (const T_SATWE_STIF_D& story : satweModel.stories.Records()) {
        atMost += story.walls.Count() + story.plateVertices.size();
    }
    elements.reserve(atMost);
    std::uint32_t level = kModelLevel;
    for (const T_SATWE_STIF_D& story : satweModel.stories.Records()) {
        AddWalls(story, ++level);
        AddPlates(story, level);
    }
    SortByNumber(satweModel);
}

void CPlanarElements::AddWalls(const T_SATWE_STIF_D& story, std::uint32_t level)
{
    std::uint32_t record = 0;
    for (const T_SATWE_STWL_D& wall : story.walls.Records()) {
        const CNodeRow& a = wall.firstListA;
        const CNodeRow& b = wall.firstListB;
        const CPlanar element{{EObject::Wall, level, record++, wall.seq},
                              {nodes.Find(b.first), nodes.Find(b.last), nodes.Find(a.last), nodes.Find(a.first)}};
        if (wall.firstCount >= 1 && IsWrittenWall(element)) {
            elements.push_back(element);
        }
    }
}

void CPlanarElements::AddPlates(const T_SATWE_STIF_D& story, std::uint32_t level)
{
    std::uint32_t record = 0;
    for (const T_SATWE_STPL_D& plate : story.plates.Records()) {
        const CElementName name{EObject::Plate, level, record++, plate.seq};
        const std::int32_t corners = std::min(plate.vertexCount, plate.storedVertices);
        if (corners > 2) {
            AddTriangles(name, story.plateVertices.data() + plate.firstVertex, corners);
        }
    }
}

void CPlanarElements::AddTriangles(const CElementName& plate, const std::int32_t* outline, std::int32_t corners)
{
    CPlanar element{plate, {}};
    auto& [corner, second, third, fourth] = element.nodes;
    corner = nodes.Find(outline[0]);
    third = nodes.Find(outline[1]);
    for (std::int32_t t = 1; t < corners - 1; ++t) {
        element.name.element = WrappedSum(plate.element, t - 1);
        second = third;
        third = nodes.Find(outline[t + 1]);
        fourth = third;
        if (IsWrittenTriangle(element)) {
            elements.push_back(element);
        }
    }
}

bool CPlanarElements::IsWrittenWall(const CPlanar& element) const
{
    const auto record = [&](std::size_t corner) -> const T_SATWE_STND_D& {
        return *nodes.At(element.nodes[corner]).record;
    };
    return HasAllNodes(element) && StandsUpright(record(1), record(2)) && StandsUpright(record(0), record(3));
}

bool CPlanarElements::IsWrittenTriangle(const CPlanar& element)
{
    if (!HasAllNodes(element)) {
        return false;
    }
    const T_SATWE_STND_D& corner = *nodes.At(element.nodes[0]).record;
    const T_SATWE_STND_D& second = *nodes.At(element.nodes[1]).record;
    const T_SATWE_STND_D& third = *nodes.At(element.nodes[2]).record;
    return !edges.PointOneWay(Difference(second, corner), Difference(third, corner));
}

void CPlanarElements::SortByNumber(const CSatweModel& model)
{
    const auto isBelow = [](const CPlanar& a, const CPlanar& b) { return a.name.element < b.name.element; };
    if (!std::is_sorted(elements.begin(), elements.end(), isBelow)) {
        std::stable_sort(elements.begin(), elements.end(), [&](const CPlanar& a, const CPlanar& b) {
            return FirstNumber(model, a.name) < FirstNumber(model, b.name);
        });
    }
}

}  // namespace satwecvt
