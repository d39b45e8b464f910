// The nodes that have a place, by the cell of a grid that they lie in.
#pragma once

#include "check/CellGrid.h"
#include "check/FrameList.h"
#include "check/Segment.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace satwecvt {

struct CPlacedNode {
    CVector place;
    std::uint32_t position;
};

class CNodeGrid {
public:
    /// The places are those of the nodes, by position.
    CNodeGrid(const CFrameList& frames, const std::vector<CVector>& places);

    /// All nodes, cell by cell; those of a cell in ascending order of their positions.
    std::span<const CPlacedNode> Nodes() const noexcept { return nodes; }

    /// Calls `visit` with the nodes of each cell that is near to a place, or to a segment that is given by its ends.
    template <class VisitNodes, class... Places>
    void VisitNear(VisitNodes visit, const Places&... places) const
    {
        if (nodes.empty()) {
            return;
        }
        grid.VisitNear(places..., [&](std::size_t first, std::size_t last) {
            for (std::size_t cell = first; cell <= last; ++cell) {
                visit(std::span<const CPlacedNode>(nodes.data() + starts[cell], nodes.data() + starts[cell + 1]));
            }
        });
    }

private:
    CCellGrid grid;
    std::vector<std::uint32_t> starts;  // by cell: where its nodes start; and where those of the last one end
    std::vector<CPlacedNode> nodes;
};

}  // namespace satwecvt
