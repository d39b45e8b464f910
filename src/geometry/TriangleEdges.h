// Tells, triangle by triangle, whether the edges from a triangle's first corner to the other two point the same way.
// Such a triangle has no area, and is left out of a model.
#pragma once

#include <array>

namespace satwecvt {

class CTriangleEdges {
public:
    using CVector = std::array<double, 3>;

    /// Whether the angle between the two edges of a triangle, in degrees and in doubles, is exactly 0. A NaN is not. An
    /// edge that is too short for a direction has that of the same edge of the triangle asked about before; a first one
    /// has none.
    bool PointOneWay(const CVector& first, const CVector& second) noexcept;

private:
    struct CEdge {
        CVector vector{};
        double square = 0.0;  // of its length

        void Take(const CVector& edge) noexcept;
    };

    bool PointApart() const noexcept;

    CEdge u;  // those taken last that are long enough
    CEdge w;
};

}  // namespace satwecvt
