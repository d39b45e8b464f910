#include "check/BoundedForce.h"

#include "doubles/BitCast.h"
#include "doubles/CharConversion.h"
#include "geometry/MathFunc.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace satwecvt {

namespace {

constexpr int kLeastPower = -308;
constexpr int kMostPower = 308;

/// The powers of ten of a double's range as the numbers that a file's "1e-05" is read as; std::pow is off by more in
/// the last digits, how much depends on the system.
std::array<double, kMostPower - kLeastPower + 1> PowersOfTen()
{
    std::array<double, kMostPower - kLeastPower + 1> powers{};
    for (std::size_t i = 0; i < powers.size(); ++i) {
        const std::string text = "1e" + std::to_string(static_cast<int>(i) + kLeastPower);
        FromChars(text.data(), text.data() + text.size(), powers[i]);
    }
    return powers;
}

const std::array<double, kMostPower - kLeastPower + 1> kPowersOfTen = PowersOfTen();

/// The largest power of ten that is not above a size; for the least sizes 1e-308.
double PowerOfTenBelow(double size) noexcept
{
    constexpr int kMantissaBits = 52;
    constexpr int kBias = 1023;
    constexpr int kDecimalsPerBit = 315653;  // times 2 to the power of 20
    const int exponent = static_cast<int>(bit_cast<std::uint64_t>(size) >> kMantissaBits) - kBias;
    const int power = std::max((exponent * kDecimalsPerBit) >> 20, kLeastPower);
    const auto index = static_cast<std::size_t>(power - kLeastPower);
    const std::size_t next = std::min(index + 1, kPowersOfTen.size() - 1);
    return kPowersOfTen[kPowersOfTen[next] <= size ? next : index];
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
    return {value, kHalfOfSixthDigit * PowerOfTenBelow(size) + bounded::RoundingOf(value) + bounded::kUnderflow};
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
