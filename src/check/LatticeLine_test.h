// Lines between points of whole numbers, and how they lie to each other, without rounding.
#pragma once

#include <algorithm>
#include <compare>
#include <cstdint>

namespace satwecvt {

struct CPoint {
    std::int64_t x;
    std::int64_t y;
    std::int64_t z;

    auto operator<=>(const CPoint&) const = default;
};

inline CPoint operator-(const CPoint& a, const CPoint& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

inline std::int64_t Dot(const CPoint& a, const CPoint& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline CPoint Cross(const CPoint& a, const CPoint& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline constexpr CPoint kOrigin{0, 0, 0};

struct CLatticeLine {
    CPoint start;
    CPoint along;  // to its end
};

inline bool HasInside(const CLatticeLine& line, const CPoint& place)
{
    const CPoint from = place - line.start;
    const std::int64_t at = Dot(from, line.along);
    return Cross(from, line.along) == kOrigin && at > 0 && at < Dot(line.along, line.along);
}

inline bool CrossInside(const CLatticeLine& a, const CLatticeLine& b)
{
    const CPoint normal = Cross(a.along, b.along);
    const CPoint apart = b.start - a.start;
    const std::int64_t square = Dot(normal, normal);
    const std::int64_t onA = Dot(Cross(apart, b.along), normal);
    const std::int64_t onB = Dot(Cross(apart, a.along), normal);
    return square != 0 && Dot(apart, normal) == 0 && onA > 0 && onA < square && onB > 0 && onB < square;
}

inline bool Overlap(const CLatticeLine& a, const CLatticeLine& b)
{
    const CPoint apart = b.start - a.start;
    const bool haveLength = a.along != kOrigin && b.along != kOrigin;
    if (!haveLength || Cross(a.along, b.along) != kOrigin || Cross(a.along, apart) != kOrigin) {
        return false;
    }
    const std::int64_t first = Dot(apart, a.along);
    const std::int64_t second = first + Dot(b.along, a.along);
    return std::max(first, second) > 0 && std::min(first, second) < Dot(a.along, a.along);
}

}  // namespace satwecvt
