// Numbers that know how far they may be from the ones that they stand for: what six printed digits leave open, and what
// the rounding of doubles adds on the way. A formula over them has its bound with its value.
#pragma once

#include <cmath>
#include <limits>

namespace satwecvt {

struct CBounded {
    double value = 0.0;
    double bound = 0.0;  // how far off it may be
};

namespace bounded {

/// What rounding adds to a sum: twice of what it can be, since the bounds themselves are rounded, too.
inline double RoundingOf(double sum) noexcept
{
    return std::numeric_limits<double>::epsilon() * std::abs(sum);
}

/// What a product loses below the range of doubles with all their digits, and much more: sums of less are slow.
inline constexpr double kUnderflow = (std::numeric_limits<double>::min)();

}  // namespace bounded

inline CBounded operator-(const CBounded& a) noexcept
{
    return {-a.value, a.bound};
}

inline CBounded operator+(const CBounded& a, const CBounded& b) noexcept
{
    const double sum = a.value + b.value;
    return {sum, a.bound + b.bound + bounded::RoundingOf(sum)};
}

inline CBounded operator-(const CBounded& a, const CBounded& b) noexcept
{
    return a + -b;
}

inline CBounded operator*(const CBounded& a, const CBounded& b) noexcept
{
    const double product = a.value * b.value;
    return {product, std::abs(a.value) * b.bound + std::abs(b.value) * a.bound + a.bound * b.bound +
                         bounded::RoundingOf(product) + bounded::kUnderflow};
}

/// A number that is exactly what it stands for.
constexpr CBounded Exactly(double value) noexcept
{
    return {value, 0.0};
}

/// Half of a number, which is exact but below the range of doubles with all their digits.
constexpr CBounded Half(const CBounded& a) noexcept
{
    return {0.5 * a.value, 0.5 * a.bound + bounded::kUnderflow};
}

/// A number that stands in a model text file with six digits: half a unit of the sixth, and what the reading rounds.
CBounded Printed(double value) noexcept;

/// A place in space.
struct CPoint {
    CBounded x;
    CBounded y;
    CBounded z;
};

CBounded Distance(const CPoint& a, const CPoint& b) noexcept;

/// A force, positive as in the load file: downward for z.
struct CBoundedForce {
    CBounded x;
    CBounded y;
    CBounded z;

    CBoundedForce& operator+=(const CBoundedForce& other) noexcept
    {
        x = x + other.x;
        y = y + other.y;
        z = z + other.z;
        return *this;
    }

    CBoundedForce operator-() const noexcept { return {-x, -y, -z}; }

    /// Whether the values are equal.
    bool IsSame(const CBoundedForce& other) const noexcept
    {
        return x.value == other.x.value && y.value == other.y.value && z.value == other.z.value;
    }

    /// Whether sums of it stay within the range of doubles, however many there are, and those of its bounds, too.
    bool IsFinite() const noexcept
    {
        constexpr double kMost = 1e300;
        const auto isFinite = [](const CBounded& a) { return std::abs(a.value) <= kMost && a.bound <= kMost; };
        return isFinite(x) && isFinite(y) && isFinite(z);
    }

    /// Whether it may be off by anything: it says nothing.
    bool IsUnbounded() const noexcept
    {
        constexpr double kMost = (std::numeric_limits<double>::max)();
        return x.bound > kMost || y.bound > kMost || z.bound > kMost;
    }
};

}  // namespace satwecvt
