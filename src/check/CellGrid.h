// A box cut into cells of one size, which tells the cells near a place or a segment. Neighbours along x have
// consecutive numbers, so cells are told in runs.
#pragma once

#include "check/Segment.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace satwecvt {

struct CBox {
    CVector low;
    CVector high;
};

class CCellGrid {
public:
    /// Cells are at least as wide as told, and so wide that there are no more than `mostCells`, which is at least 1.
    /// The edges of the box are not longer than 1.
    CCellGrid(const CBox& box, double leastWidth, std::size_t mostCells);

    std::size_t Cells() const noexcept { return counts[0] * counts[1] * counts[2]; }

    std::size_t CellAt(const CVector& place) const noexcept
    {
        return CellOf({IndexOf(place.x, 0), IndexOf(place.y, 1), IndexOf(place.z, 2)});
    }

    /// Calls `visit(first, last)` with runs of cells: all that have something within `kReach` of the place.
    template <class VisitRun>
    void VisitNear(const CVector& place, VisitRun visit) const
    {
        VisitBox({place, place}, visit);
    }

    /// The same for a segment. No cell is told twice.
    template <class VisitRun>
    void VisitNear(const CVector& from, const CVector& to, VisitRun visit) const
    {
        const CVector along = to - from;
        const int directions = (along.x != 0.0 ? 1 : 0) + (along.y != 0.0 ? 1 : 0) + (along.z != 0.0 ? 1 : 0);
        if (directions <= 1) {
            VisitBox(BoxOf(from, to), visit);
        } else {
            VisitSlabs(from, along, visit);
        }
    }

    /// More than two things that touch can be apart.
    static constexpr double kReach = 2.0 * kPlaceTolerance;

private:
    using CIndex = std::array<std::size_t, 3>;

    static CBox BoxOf(const CVector& a, const CVector& b) noexcept
    {
        return {{(std::min)(a.x, b.x), (std::min)(a.y, b.y), (std::min)(a.z, b.z)},
                {(std::max)(a.x, b.x), (std::max)(a.y, b.y), (std::max)(a.z, b.z)}};
    }

    std::size_t IndexOf(double coordinate, std::size_t axis) const noexcept
    {
        const double index = (coordinate - low[axis]) * cellsPerLength;
        const double last = lasts[axis];
        return static_cast<std::size_t>(index > 0.0 ? (index < last ? index : last) : 0.0);
    }

    std::size_t CellOf(const CIndex& index) const noexcept
    {
        return (index[2] * counts[1] + index[1]) * counts[0] + index[0];
    }

    template <class VisitRun>
    void VisitBox(const CBox& box, VisitRun& visit) const
    {
        VisitCells({IndexOf(box.low.x - kReach, 0), IndexOf(box.low.y - kReach, 1), IndexOf(box.low.z - kReach, 2)},
                   {IndexOf(box.high.x + kReach, 0), IndexOf(box.high.y + kReach, 1), IndexOf(box.high.z + kReach, 2)},
                   visit);
    }

    template <class VisitRun>
    void VisitCells(const CIndex& first, const CIndex& last, VisitRun& visit) const
    {
        for (std::size_t z = first[2]; z <= last[2]; ++z) {
            for (std::size_t y = first[1]; y <= last[1]; ++y) {
                visit(CellOf({first[0], y, z}), CellOf({last[0], y, z}));
            }
        }
    }

    /// Cuts an oblique segment where it passes from one layer of cells to the next in its main direction.
    template <class VisitRun>
    void VisitSlabs(const CVector& from, const CVector& along, VisitRun& visit) const
    {
        const std::array<double, 3> start{from.x, from.y, from.z};
        const std::array<double, 3> way{along.x, along.y, along.z};
        std::size_t main = std::abs(way[1]) > std::abs(way[0]) ? 1 : 0;
        main = std::abs(way[2]) > std::abs(way[main]) ? 2 : main;
        const double lowEnd = start[main] + (std::min)(way[main], 0.0);
        const double highEnd = start[main] + (std::max)(way[main], 0.0);
        const std::size_t lastLayer = IndexOf(highEnd + kReach, main);
        for (std::size_t layer = IndexOf(lowEnd - kReach, main); layer <= lastLayer; ++layer) {
            const double floor = low[main] + static_cast<double>(layer) / cellsPerLength;
            const double ceiling = low[main] + static_cast<double>(layer + 1) / cellsPerLength;
            const double a = std::clamp((floor - kReach - start[main]) / way[main], 0.0, 1.0);
            const double b = std::clamp((ceiling + kReach - start[main]) / way[main], 0.0, 1.0);
            CIndex first{};
            CIndex last{};
            for (std::size_t axis = 0; axis < 3; ++axis) {
                const double atA = start[axis] + a * way[axis];
                const double atB = start[axis] + b * way[axis];
                first[axis] = axis == main ? layer : IndexOf((std::min)(atA, atB) - kReach, axis);
                last[axis] = axis == main ? layer : IndexOf((std::max)(atA, atB) + kReach, axis);
            }
            VisitCells(first, last, visit);
        }
    }

    std::array<double, 3> low;
    double cellsPerLength = 0.0;
    CIndex counts{};
    std::array<double, 3> lasts{};  // the last index of each axis
};

}  // namespace satwecvt
