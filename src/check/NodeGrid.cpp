#include "check/NodeGrid.h"

#include "check/Places.h"

namespace satwecvt {

namespace {

CBox BoxOf(const std::vector<CVector>& places)
{
    CBox box{{1.0, 1.0, 1.0}, {0.0, 0.0, 0.0}};
    bool hasPlace = false;
    for (const CVector& place : places) {
        if (HasPlace(place)) {
            box.low = {std::min(box.low.x, place.x), std::min(box.low.y, place.y), std::min(box.low.z, place.z)};
            box.high = {std::max(box.high.x, place.x), std::max(box.high.y, place.y), std::max(box.high.z, place.z)};
            hasPlace = true;
        }
    }
    return hasPlace ? box : CBox{};
}

/// Cells of half the length of a usual frame element are narrow enough that few nodes beside an element are looked at,
/// and wide enough that all elements together pass through a number of cells in proportion to their own.
CCellGrid GridOf(const CFrameList& frames, const std::vector<CVector>& places)
{
    double lengths = 0.0;
    for (const CFrame& frame : frames.Frames()) {
        const CVector along = places[frame.nodeJ] - places[frame.nodeI];
        const double length = std::abs(along.x) + std::abs(along.y) + std::abs(along.z);  // at least that
        lengths += length > 0.0 ? length : 0.0;
    }
    const double usual = lengths / static_cast<double>(std::max<std::size_t>(1, frames.Frames().size()));
    return {BoxOf(places), usual * 0.5, places.size() / 2 + 1};
}

}  // namespace

CNodeGrid::CNodeGrid(const CFrameList& frames, const std::vector<CVector>& places) : grid(GridOf(frames, places))
{
    starts.assign(grid.Cells() + 1, 0);
    std::vector<std::uint32_t> cells(places.size(), kNone);
    for (std::size_t position = 0; position < places.size(); ++position) {
        if (HasPlace(places[position])) {
            cells[position] = static_cast<std::uint32_t>(grid.CellAt(places[position]));
            ++starts[cells[position]];
        }
    }
    std::uint32_t total = 0;
    for (std::uint32_t& start : starts) {
        total += start;
        start = total;  // for now where the nodes of the cell end
    }
    nodes.resize(total);
    for (std::size_t position = places.size(); position-- > 0;) {
        if (cells[position] != kNone) {
            nodes[--starts[cells[position]]] = {places[position], static_cast<std::uint32_t>(position)};
        }
    }
}

}  // namespace satwecvt
