// Reads a decimal number exactly, where that takes few steps.
//
// The digits go into a 64-bit integer. When it is at most 2^53, it is a double without loss, and so are the powers of
// ten up to 10^22: their product or quotient is then rounded once, to the double nearest to the decimal number, which
// is the definition of the right answer. Longer numbers and larger exponents are left to `std::from_chars`.
#pragma once

#include <cstddef>
#include <cstdint>

namespace satwecvt {

namespace decimal {

/// Appends digits to an integer that wraps at 64 bits: with at most 19 of them it does not.
inline const char* ReadDigits(const char* at, std::uint64_t& digits) noexcept
{
    for (auto digit = static_cast<unsigned char>(*at - '0'); digit <= 9;
         digit = static_cast<unsigned char>(*at - '0')) {
        digits = digits * 10 + digit;
        ++at;
    }
    return at;
}

/// The rest of a number whose digits from `begin` to `at` have been read.
bool ReadPointAndExponent(const char* begin, const char*& at, std::uint64_t digits, double& value) noexcept;

}  // namespace decimal

/// Reads the digits, point and exponent of a number without a sign, and moves `at` behind them. The text has to end
/// with a character that is none of these, as a newline. Returns false when there is no digit, when an exponent's
/// letter has no digit behind it, when the number has more than 19 digits, or is out of a double's range; `at` and
/// `value` are anything then.
inline bool ReadDecimal(const char*& at, double& value) noexcept
{
    const char* const begin = at;
    std::uint64_t digits = 0;
    at = decimal::ReadDigits(at, digits);
    constexpr std::ptrdiff_t kExactDigits = 15;
    const bool isInteger = *at != '.' && *at != 'E' && *at != 'e';
    if (isInteger && at != begin && at - begin <= kExactDigits) {
        value = static_cast<double>(static_cast<std::int64_t>(digits));
        return true;
    }
    return decimal::ReadPointAndExponent(begin, at, digits, value);
}

}  // namespace satwecvt
