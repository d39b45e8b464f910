// The walls and the triangles of plates that are written, with their nodes.
#pragma once

#include "check/FrameList.h"
#include "check/NodeList.h"
#include "geometry/TriangleEdges.h"
#include "model/SatweModel.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace satwecvt {

struct CPlanarElement {
    CElementName name;
    std::array<std::uint32_t, 4> nodes;  // positions; the last two of a triangle are one
};

/// Goes through the stories as they are written.
class CPlanarElements {
public:
    CPlanarElements(const CSatweModel& satweModel, const CNodeList& nodeList) : model(satweModel), nodes(nodeList) {}

    /// Calls `visit` with each element that is written, story by story, walls before triangles.
    template <class VisitElement>
    void Visit(VisitElement visit) const
    {
        CTriangleEdges edges;  // one for all stories, as for the writing
        std::uint32_t level = kModelLevel;
        for (const T_SATWE_STIF_D& story : model.stories.Records()) {
            VisitWalls(story, ++level, visit);
            VisitPlates(story, level, edges, visit);
        }
    }

private:
    template <class VisitElement>
    void VisitWalls(const T_SATWE_STIF_D& story, std::uint32_t level, VisitElement& visit) const
    {
        std::uint32_t record = 0;
        for (const T_SATWE_STWL_D& wall : story.walls.Records()) {
            const CNodeRow& a = wall.firstListA;
            const CNodeRow& b = wall.firstListB;
            const CPlanarElement element{
                {EObject::Wall, level, record++, wall.seq},
                {nodes.Find(b.first), nodes.Find(b.last), nodes.Find(a.last), nodes.Find(a.first)}};
            if (wall.firstCount >= 1 && IsWrittenWall(element)) {
                visit(element);
            }
        }
    }

    template <class VisitElement>
    void VisitPlates(const T_SATWE_STIF_D& story, std::uint32_t level, CTriangleEdges& edges, VisitElement& visit) const
    {
        std::uint32_t record = 0;
        for (const T_SATWE_STPL_D& plate : story.plates.Records()) {
            const std::int32_t* const outline = story.plateVertices.data() + plate.firstVertex;
            const std::int32_t corners = std::min(plate.vertexCount, plate.storedVertices);
            CPlanarElement element{{EObject::Plate, level, record++, plate.seq}, {}};
            auto& [corner, second, third, fourth] = element.nodes;
            corner = corners > 2 ? nodes.Find(outline[0]) : kNone;
            third = corners > 2 ? nodes.Find(outline[1]) : kNone;
            for (std::int32_t t = 1; t < corners - 1; ++t) {
                element.name.element = WrappedSum(plate.seq, t - 1);
                second = third;
                third = nodes.Find(outline[t + 1]);
                fourth = third;
                if (IsWrittenTriangle(element, edges)) {
                    visit(element);
                }
            }
        }
    }

    bool IsWrittenWall(const CPlanarElement& element) const;
    bool IsWrittenTriangle(const CPlanarElement& element, CTriangleEdges& edges) const;

    const CSatweModel& model;
    const CNodeList& nodes;
};

}  // namespace satwecvt
