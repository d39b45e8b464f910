// The walls and the triangles of plates that are written, with their nodes.
#pragma once

#include "check/FrameList.h"
#include "check/NodeList.h"
#include "geometry/TriangleEdges.h"
#include "model/SatweModel.h"

#include <array>
#include <cstdint>
#include <vector>

namespace satwecvt {

struct CPlanar {
    CElementName name;
    std::array<std::uint32_t, 4> nodes;  // positions; the last two of a triangle are one
};

class CPlanarElements {
public:
    CPlanarElements(const CSatweModel& satweModel, const CNodeList& nodeList);

    /// Walls and plates stand in ascending order of their first element numbers, each plate's triangles together.
    const std::vector<CPlanar>& Elements() const noexcept { return elements; }

private:
    void AddWalls(const T_SATWE_STIF_D& story, std::uint32_t level);
    void AddPlates(const T_SATWE_STIF_D& story, std::uint32_t level);
    void AddTriangles(const CElementName& plate, const std::int32_t* outline, std::int32_t corners);
    bool IsWrittenWall(const CPlanar& element) const;
    bool IsWrittenTriangle(const CPlanar& element);
    void SortByNumber(const CSatweModel& model);

    const CNodeList& nodes;
    CTriangleEdges edges;  // one for all stories, as for the writing
    std::vector<CPlanar> elements;
};

}  // namespace satwecvt
