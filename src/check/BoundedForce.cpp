#include "check/BoundedForce.h"

#include "geometry/MathFunc.h"

#include <array>
#include <cstddef>

namespace satwecvt {

namespace {

constexpr int kLeastPower = -323;
constexpr int kMostPower = 308;

/// The powers of ten of a double's range, each within a few units of its last digit.
std::array<double, kMostPower - kLeastPower + 1> PowersOfTen()
{
    std::array<double, kMostPower - kLeastPower + 1> powers{};
    for (std::size_t i = 0; i < powers.size(); ++i) {
        powers[i] = std::pow(10.0, static_cast<int>(i) + kLeastPower);
    }
    return powers;
}

const std::array<double, kMostPower - kLeastPower + 1> kPowersOfTen = PowersOfTen();

/// The largest power of ten that is not above a size; for the least sizes 0.
double PowerOfTenBelow(double size) noexcept
{
    constexpr double kDecimalsPerBit = 0.30102999566398120;
    constexpr double kJustMore = 1.00000000000001;  // powers of ten are not exact, and 1e-05 is to find its own
    constexpr int kLast = kMostPower - kLeastPower;
    int power = static_cast<int>(std::floor(std::ilogb(size) * kDecimalsPerBit)) - kLeastPower;
    if (power < kLast && kPowersOfTen[static_cast<std::size_t>(power + 1)] <= size * kJustMore) {
        ++power;
    }
    return power < 0 ? 0.0 : kPowersOfTen[static_cast<std::size_t>(power)];
}

/// The square of a shorter length leaves the range of doubles, or most of its digits do.
constexpr double kShortest = 1e-153;

}  // namespace

CBounded Printed(double value) noexcept
{
    const double size = std::abs(value);
    if (size == 0.0 || !std::isfinite(value)) {
        return Exactly(value);
    }
    constexpr double kHalfOfSixthDigit = 0.5e-5;
    return {value, kHalfOfSixthDigit * PowerOfTenBelow(size) + bounded::RoundingOf(value)};
}

CBounded Distance(const CPoint& a, const CPoint& b) noexcept
{
    const double length = CMathFunc::Distance(a.x.value, a.y.value, a.z.value, b.x.value, b.y.value, b.z.value);
    // As far as the ends may be off, the length may be, too.
    const double moved =
        CMathFunc::Distance(a.x.bound + b.x.bound, a.y.bound + b.y.bound, a.z.bound + b.z.bound, 0.0, 0.0, 0.0);
    constexpr double kRoundings = 4.0;
    return {length, moved + kRoundings * bounded::RoundingOf(length) + kShortest};
}

}  // namespace satwecvt
