#include "check/CellGrid.h"

namespace satwecvt {

namespace {

/// More than enough of them for any box, so that a narrow cell costs no time where it is not needed.
constexpr double kLeastWidth = 16.0 * kPlaceTolerance;

}  // namespace

CCellGrid::CCellGrid(const CBox& box, double leastWidth, std::size_t mostCells) : low{box.low.x, box.low.y, box.low.z}
{
    const std::array<double, 3> edges{box.high.x - box.low.x, box.high.y - box.low.y, box.high.z - box.low.z};
    double width = std::max(leastWidth, kLeastWidth);
    const auto count = [&](std::size_t axis) { return 1.0 + std::floor(edges[axis] / width); };
    while (count(0) * count(1) * count(2) > static_cast<double>(mostCells)) {
        width *= 1.25;
    }
    cellsPerLength = 1.0 / width;
    for (std::size_t axis = 0; axis < counts.size(); ++axis) {
        counts[axis] = static_cast<std::size_t>(count(axis));
        lasts[axis] = count(axis) - 1.0;
    }
}

}  // namespace satwecvt
