#include "lines/Decimal.h"

#include "doubles/CharConversion.h"

#include <cstddef>
#include <cstdint>
#include <system_error>

namespace satwecvt {

namespace {

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int kLargestPower = 22;

/// Reads the exponent behind its letter. Beyond four digits it is no matter for the quick way: any large number does.
bool ReadExponent(const char*& at, int& exponent) noexcept
{
    const bool isNegative = *at == '-';
    at += *at == '-' || *at == '+' ? 1 : 0;
    std::uint64_t digits = 0;
    const char* const end = decimal::ReadDigits(at, digits);
    const bool isPresent = end != at;
    constexpr std::uint64_t kLarge = 1000;
    const int magnitude = end - at > 4 || digits > kLarge ? static_cast<int>(kLarge) : static_cast<int>(digits);
    exponent = isNegative ? -magnitude : magnitude;
    at = end;
    return isPresent;
}

}  // namespace

bool decimal::ReadPointAndExponent(const char* begin, const char*& at, std::uint64_t digits, double& value) noexcept
{
    auto count = at - begin;
    int exponent = 0;
    if (*at == '.') {
        const char* const fraction = at + 1;
        at = ReadDigits(fraction, digits);
        exponent = static_cast<int>(fraction - at);
        count += at - fraction;
    }
    constexpr std::ptrdiff_t kMostDigits = 19;
    if (count == 0 || count > kMostDigits) {
        return false;
    }
    if (*at == 'E' || *at == 'e') {
        int written = 0;
        ++at;
        if (!ReadExponent(at, written)) {
            return false;
        }
        exponent += written;
    }
    constexpr std::uint64_t kExactIntegers = std::uint64_t{1} << 53;
    if (digits > kExactIntegers || exponent < -kLargestPower || exponent > kLargestPower) {
        const auto [end, error] = FromChars(begin, at, value);
        return error == std::errc() && end == at;
    }
    value = static_cast<double>(static_cast<std::int64_t>(digits));
    value = exponent < 0 ? value / kPowersOfTen[-exponent] : value * kPowersOfTen[exponent];
    return true;
}

}  // namespace satwecvt
