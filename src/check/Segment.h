// Straight lines between places, and how two of them lie to each other. Lengths are parts of the building's greatest
// extent; what is nearer than a millionth of the length at hand counts as touching, so that rounded inputs do.
#pragma once

#include <algorithm>
#include <cmath>

namespace satwecvt {

struct CVector {
    double x;
    double y;
    double z;
};

constexpr CVector operator-(const CVector& a, const CVector& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

constexpr double Dot(const CVector& a, const CVector& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

constexpr CVector Cross(const CVector& a, const CVector& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// Places that are no farther apart are one.
inline constexpr double kPlaceTolerance = 1e-6;

/// How far from a line something may be, in its length.
inline constexpr double kLineTolerance = 1e-6;

inline bool IsOnePlace(const CVector& a, const CVector& b)
{
    const CVector apart = a - b;
    return Dot(apart, apart) <= kPlaceTolerance * kPlaceTolerance;
}

struct CSegment {
    CVector start;
    CVector along;  // from start to end
    double square;  // of the length

    CSegment(const CVector& from, const CVector& to) : start(from), along(to - from), square(Dot(along, along)) {}

    /// False where both ends are at one place, and where one of them is at none.
    bool HasLength() const { return square > kPlaceTolerance * kPlaceTolerance; }

    /// Whether a distance along the segment, given times its length, is that of two places. No root has to be drawn.
    bool IsApart(double distance) const
    {
        return distance > 0.0 && distance * distance > kPlaceTolerance * kPlaceTolerance * square;
    }

    /// Whether a distance from the start, given times the length, is that of a place between the ends.
    bool IsBetweenEnds(double distance) const { return IsApart(distance) && IsApart(square - distance); }

    /// Whether a place, given from the start, is on the straight line through the ends.
    bool IsOnLine(const CVector& fromStart) const
    {
        const CVector beside = Cross(fromStart, along);  // its length: the distance from the line, times the length
        return Dot(beside, beside) <= kLineTolerance * kLineTolerance * (square * square);
    }

    /// Whether a place lies on the segment and is none of its ends.
    bool HasInside(const CVector& place) const
    {
        const CVector fromStart = place - start;
        return IsBetweenEnds(Dot(fromStart, along)) && IsOnLine(fromStart);
    }
};

/// Whether two segments with length lie on one line and share more than a point.
inline bool Overlap(const CSegment& a, const CSegment& b)
{
    const CSegment& longer = a.square < b.square ? b : a;
    const CSegment& other = a.square < b.square ? a : b;
    const CVector first = other.start - longer.start;
    const CVector second{first.x + other.along.x, first.y + other.along.y, first.z + other.along.z};
    if (!longer.IsOnLine(first) || !longer.IsOnLine(second)) {
        return false;
    }
    const double firstAt = Dot(first, longer.along);
    const double secondAt = Dot(second, longer.along);
    const double sharedTo = (std::min)((std::max)(firstAt, secondAt), longer.square);
    const double sharedFrom = (std::max)((std::min)(firstAt, secondAt), 0.0);
    return longer.IsApart(sharedTo - sharedFrom);
}

/// Whether two segments with length meet in one place that is an end of neither.
inline bool CrossInside(const CSegment& a, const CSegment& b)
{
    const CVector normal = Cross(a.along, b.along);
    const double square = Dot(normal, normal);
    if (square <= kLineTolerance * kLineTolerance * (a.square * b.square)) {
        return false;  // they have one direction
    }
    const CVector apart = b.start - a.start;
    const double gap = Dot(apart, normal);  // times the length of the normal
    if (gap * gap > kLineTolerance * kLineTolerance * ((std::max)(a.square, b.square) * square)) {
        return false;
    }
    const double onA =
        Dot(Cross(apart, b.along), normal) / square;  // where the lines are nearest to each other, from 0
    const double onB = Dot(Cross(apart, a.along), normal) / square;  // at the start to 1 at the end
    return a.IsBetweenEnds(onA * a.square) && b.IsBetweenEnds(onB * b.square);
}

}  // namespace satwecvt
