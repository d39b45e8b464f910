#include "doubles/HexNumber.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <system_error>

namespace satwecvt::own {

namespace {

/// The value of a hexadecimal digit; 16 for another character.
constexpr unsigned DigitOf(char c) noexcept
{
    if (IsDigit(c)) {
        return static_cast<unsigned>(c - '0');
    }
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? static_cast<unsigned>(lower - 'a') + 10 : 16;
}

/// A number as its digits tell it: bits * 2^exponent, with the lowest bit set for whatever stands below it.
struct CHexNumber {
    std::uint64_t bits = 0;
    std::int64_t exponent = 0;

    void Append(unsigned digit, bool isBehindPoint) noexcept
    {
        constexpr std::uint64_t kRoomForADigit = std::uint64_t{1} << 60;
        if (bits < kRoomForADigit) {
            bits = bits * 16 + digit;
            exponent -= isBehindPoint ? 4 : 0;
        } else {
            bits |= digit != 0 ? 1U : 0U;
            exponent += isBehindPoint ? 0 : 4;
        }
    }
};

/// Reads digits with at most one point among them, and moves `at` behind them. Returns whether there was a digit.
bool ReadHexDigits(const char*& at, const char* last, CHexNumber& number) noexcept
{
    bool hasDigit = false;
    bool isBehindPoint = false;
    for (; at != last; ++at) {
        if (*at == '.' && !isBehindPoint) {
            isBehindPoint = true;
        } else if (DigitOf(*at) < 16) {
            number.Append(DigitOf(*at), isBehindPoint);
            hasDigit = true;
        } else {
            break;
        }
    }
    return hasDigit;
}

/// Reads an exponent, if there is a whole one, and moves `at` behind it.
void ReadExponent(const char*& at, const char* last, CHexNumber& number) noexcept
{
    if (at == last || (*at != 'p' && *at != 'P')) {
        return;
    }
    const char* digit = at + 1;
    const bool isNegative = digit != last && *digit == '-';
    digit += digit != last && (*digit == '-' || *digit == '+') ? 1 : 0;
    if (digit == last || !IsDigit(*digit)) {
        return;
    }
    constexpr std::int64_t kLarge = std::int64_t{1} << 58;
    std::int64_t exponent = 0;
    for (; digit != last && IsDigit(*digit); ++digit) {
        exponent = std::min(exponent * 10 + (*digit - '0'), kLarge);
    }
    number.exponent += isNegative ? -exponent : exponent;
    at = digit;
}

/// The position of the highest bit that is set, from 0.
int HighestBit(std::uint64_t bits) noexcept
{
    int position = 0;
    while ((bits >>= 1) != 0) {
        ++position;
    }
    return position;
}

/// Bits without their lowest `count`, rounded to nearest, ties to even.
std::uint64_t Rounded(std::uint64_t bits, std::int64_t count) noexcept
{
    if (count <= 0) {
        return bits;
    }
    if (count > 64) {
        return 0;
    }
    const std::uint64_t half = std::uint64_t{1} << (count - 1);
    const std::uint64_t rest = bits & (half | (half - 1));
    const std::uint64_t kept = count == 64 ? 0 : bits >> count;
    const bool isUp = rest > half || (rest == half && (kept & 1) != 0);
    return kept + (isUp ? 1 : 0);
}

/// Rounds a number that is not 0 to a double. Returns whether it is in the range of doubles.
bool RoundToDouble(const CHexNumber& number, double& value) noexcept
{
    constexpr int kMantissaBits = std::numeric_limits<double>::digits;
    constexpr std::int64_t kLeastExponent = std::numeric_limits<double>::min_exponent - kMantissaBits;
    const std::int64_t bitsTooMany = HighestBit(number.bits) + 1 - kMantissaBits;
    const std::int64_t bitsBelowAll = kLeastExponent - number.exponent;
    const std::int64_t dropped = std::max(std::max(bitsTooMany, bitsBelowAll), std::int64_t{0});
    const auto mantissa = static_cast<double>(Rounded(number.bits, dropped));
    constexpr std::int64_t kBeyond = 10'000;  // which no double comes back from
    const auto exponent = static_cast<int>(std::clamp(number.exponent + dropped, -kBeyond, kBeyond));
    const double rounded = std::ldexp(mantissa, exponent);
    if (rounded == 0.0 || std::isinf(rounded)) {
        return false;
    }
    value = rounded;
    return true;
}

}  // namespace

std::from_chars_result FromHex(const char* first, const char* last, double& value) noexcept
{
    CHexNumber number;
    const char* at = first;
    if (!ReadHexDigits(at, last, number)) {
        return {first, std::errc::invalid_argument};
    }
    ReadExponent(at, last, number);
    if (number.bits == 0) {
        value = 0.0;
    } else if (!RoundToDouble(number, value)) {
        return {at, std::errc::result_out_of_range};
    }
    return {at, std::errc()};
}

}  // namespace satwecvt::own
