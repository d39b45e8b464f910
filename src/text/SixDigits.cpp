#include "text/SixDigits.h"

#include "doubles/BitCast.h"

#include <array>

namespace satwecvt {

#ifdef __SIZEOF_INT128__

namespace {

__extension__ using Wide = unsigned __int128;

constexpr std::uint64_t kLeastSixDigits = 100'000;
constexpr std::uint64_t kSevenDigits = 1'000'000;

template <std::size_t Size>
constexpr std::array<std::uint64_t, Size> PowersOf(std::uint64_t base)
{
    std::array<std::uint64_t, Size> powers{1};
    for (std::size_t i = 1; i < Size; ++i) {
        powers[i] = powers[i - 1] * base;
    }
    return powers;
}

constexpr auto kPowersOfFive = PowersOf<28>(5);  // the largest ones below 2^64
constexpr auto kPowersOfTen = PowersOf<20>(10);

/// The parts of a double: mantissa * 2^exponent.
struct CBinary {
    std::uint64_t mantissa;  // 2^52 to 2^53 - 1
    int exponent;
};

CBinary Split(double number) noexcept
{
    constexpr int kMantissaBits = 52;
    constexpr int kBias = 1075;
    constexpr std::uint64_t kHiddenBit = std::uint64_t{1} << kMantissaBits;
    const auto bits = bit_cast<std::uint64_t>(number);
    return {(bits & (kHiddenBit - 1)) | kHiddenBit, static_cast<int>(bits >> kMantissaBits) - kBias};
}

/// The power of ten of the first digit, or the one below it: log10(2) is 1233/4096 and a little more.
int LeastDecimalExponent(const CBinary& binary) noexcept
{
    return ((binary.exponent + 52) * 1233) >> 12;
}

/// Rounding may have given a seventh digit.
CSixDigits Normalised(std::uint64_t digits, int exponent) noexcept
{
    const bool isSeven = digits == kSevenDigits;
    return {static_cast<std::uint32_t>(isSeven ? kLeastSixDigits : digits), isSeven ? exponent + 1 : exponent};
}

CSixDigits RoundBelowAMillion(const CBinary& binary) noexcept
{
    int exponent = LeastDecimalExponent(binary);
    for (;; ++exponent) {
        const int scale = 5 - exponent;
        const Wide product = Wide{binary.mantissa} * kPowersOfFive[static_cast<std::size_t>(scale)];
        const int shift = -(binary.exponent + scale);
        const auto digits = static_cast<std::uint64_t>(product >> shift);
        if (digits < kSevenDigits) {
            const Wide half = Wide{1} << (shift - 1);
            const Wide dropped = product & (half * 2 - 1);
            const bool isUp = dropped > half || (dropped == half && digits % 2 != 0);
            return Normalised(digits + (isUp ? 1 : 0), exponent);
        }
    }
}

CSixDigits RoundFromAMillion(const CBinary& binary) noexcept
{
    int exponent = LeastDecimalExponent(binary);
    for (;; ++exponent) {
        const std::uint64_t divisor = kPowersOfTen[static_cast<std::size_t>(exponent - 5)] << -binary.exponent;
        const std::uint64_t digits = binary.mantissa / divisor;
        if (digits < kSevenDigits) {
            const std::uint64_t rest = binary.mantissa % divisor;
            const bool isUp = rest * 2 > divisor || (rest * 2 == divisor && digits % 2 != 0);
            return Normalised(digits + (isUp ? 1 : 0), exponent);
        }
    }
}

}  // namespace

bool RoundToSixDigits(double number, CSixDigits& rounded) noexcept
{
    constexpr double kLeast = 1e-20;
    constexpr double kMillion = 1e6;
    constexpr double kEnd = 9007199254740992.0;
    if (!(number >= kLeast && number < kEnd)) {
        return false;
    }
    rounded = number < kMillion ? RoundBelowAMillion(Split(number)) : RoundFromAMillion(Split(number));
    return true;
}

#else

bool RoundToSixDigits(double, CSixDigits&) noexcept
{
    return false;
}

#endif

}  // namespace satwecvt
