#include "geometry/TriangleEdges.h"

#include "geometry/MathFunc.h"

#include <cmath>

namespace satwecvt {

bool CTriangleEdges::PointOneWay(const CVector& first, const CVector& second) noexcept
{
    u.Take(first);
    w.Take(second);
    if (PointApart()) {
        return false;
    }
    CVector unitU{};
    CVector unitW{};
    static_cast<void>(CMathFunc::Normalize(u.vector.data(), unitU.data()));
    static_cast<void>(CMathFunc::Normalize(w.vector.data(), unitW.data()));
    return CMathFunc::AngleDeg(unitU.data(), unitW.data()) == 0.0;
}

void CTriangleEdges::CEdge::Take(const CVector& edge) noexcept
{
    const double sum = edge[0] * edge[0] + edge[1] * edge[1] + edge[2] * edge[2];
    const bool isTooShort = !(sum > 1e-29) && EPS_LEN > std::sqrt(sum);  // a NaN is not
    if (!isTooShort) {
        vector = edge;
        square = sum;
    }
}

/// Whether the angle is so far from 0 that rounding cannot make it 0: this saves most triangles the square roots and
/// the arc cosine. Squares that might overflow or vanish prove nothing.
bool CTriangleEdges::PointApart() const noexcept
{
    constexpr double kLeast = 1e-100;
    constexpr double kMost = 1e100;
    const bool isInRange = u.square > kLeast && u.square < kMost && w.square > kLeast && w.square < kMost;
    const double dot = u.vector[0] * w.vector[0] + u.vector[1] * w.vector[1] + u.vector[2] * w.vector[2];
    return isInRange && (dot <= 0.0 || dot * dot < 0.999 * (u.square * w.square));
}

}  // namespace satwecvt
