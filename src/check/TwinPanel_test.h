// Walls and slabs of a building on a lattice, element by element, without rounding.
#pragma once

#include "check/LatticeLine_test.h"
#include "satwecvt/Finding.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace satwecvt {

struct CTwinCorner {
    std::int32_t number;
    CPoint place;
};

/// A wall by its upper row from end to end and its lower row back, or a slab by its outline.
struct CTwinPanel {
    EObject kind;
    std::int32_t story;
    std::int32_t element;  // the first one's number
    std::vector<CTwinCorner> corners;
};

/// An element of a panel.
struct CTwinFace {
    std::int32_t element;
    std::vector<std::int32_t> numbers;  // of its nodes, in ascending order
};

inline bool IsOneWay(const CPoint& a, const CPoint& b)
{
    return Cross(a, b) == kOrigin && Dot(a, b) > 0;
}

inline bool IsAlongAnAxis(const CPoint& a)
{
    return (a.x != 0) + (a.y != 0) + (a.z != 0) == 1;
}

/// Whether no rounding decides what is written of a panel: no triangle has an edge without length, and those that are
/// flat lie along an axis.
inline bool IsClearCut(const CTwinPanel& panel)
{
    const auto edge = [&](std::size_t corner) { return panel.corners[corner].place - panel.corners[0].place; };
    for (std::size_t t = 1; panel.kind == EObject::Plate && t + 1 < panel.corners.size(); ++t) {
        const bool hasEdges = edge(t) != kOrigin && edge(t + 1) != kOrigin;
        if (!hasEdges || (IsOneWay(edge(t), edge(t + 1)) && !IsAlongAnAxis(edge(t)))) {
            return false;
        }
    }
    return true;
}

/// The elements of a panel that are written.
inline std::vector<CTwinFace> FacesOf(const CTwinPanel& panel)
{
    std::vector<CTwinFace> faces;
    const auto add = [&](std::int32_t element, std::vector<std::int32_t> numbers) {
        std::sort(numbers.begin(), numbers.end());
        faces.push_back({element, numbers});
    };
    const auto& corners = panel.corners;
    if (panel.kind == EObject::Wall) {
        const auto isUpright = [&](std::size_t a, std::size_t b) {
            const CPoint apart = corners[a].place - corners[b].place;
            return apart.x == 0 && apart.y == 0;
        };
        if (isUpright(0, 3) && isUpright(1, 2)) {
            add(panel.element, {corners[0].number, corners[1].number, corners[2].number, corners[3].number});
        }
        return faces;
    }
    for (std::size_t t = 1; t + 1 < corners.size(); ++t) {
        if (!IsOneWay(corners[t].place - corners[0].place, corners[t + 1].place - corners[0].place)) {
            const auto element = panel.element + static_cast<std::int32_t>(t) - 1;
            add(element, {corners[0].number, corners[t].number, corners[t + 1].number});
        }
    }
    return faces;
}

}  // namespace satwecvt
