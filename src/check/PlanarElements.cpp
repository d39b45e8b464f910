#include "check/PlanarElements.h"

#include <cstddef>

namespace satwecvt {

namespace {

bool HasAllNodes(const CPlanarElement& element)
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

}  // namespace

bool CPlanarElements::IsWrittenWall(const CPlanarElement& element) const
{
    const auto record = [&](std::size_t corner) -> const T_SATWE_STND_D& {
        return *nodes.At(element.nodes[corner]).record;
    };
    return HasAllNodes(element) && StandsUpright(record(1), record(2)) && StandsUpright(record(0), record(3));
}

bool CPlanarElements::IsWrittenTriangle(const CPlanarElement& element, CTriangleEdges& edges) const
{
    if (!HasAllNodes(element)) {
        return false;
    }
    const T_SATWE_STND_D& corner = *nodes.At(element.nodes[0]).record;
    const T_SATWE_STND_D& second = *nodes.At(element.nodes[1]).record;
    const T_SATWE_STND_D& third = *nodes.At(element.nodes[2]).record;
    return !edges.PointOneWay(Difference(second, corner), Difference(third, corner));
}

}  // namespace satwecvt
