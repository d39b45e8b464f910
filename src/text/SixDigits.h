// Rounds a double to six significant digits exactly, where that takes few steps.
//
// A double is m * 2^e with an integer m below 2^53. Its six digits are the integer nearest to m * 2^e * 10^s for the s
// that gives six digits; a tie goes to the even one, as printf rounds. Both halves of the range stay in integers:
// - below 1e6, s is not negative: m * 5^s fits into 128 bits, and 2^(e + s) is a shift to the right. What the shift
//   drops is compared with one half.
// - from 1e6 to 2^53, s is negative: m is divided by 10^-s * 2^-e, which fits into 64 bits. The remainder is compared
//   with half the divisor.
// Numbers outside of 1e-20 to 2^53 are left to the library, as all are where the compiler has no 128-bit integer.
#pragma once

#include <cstdint>

namespace satwecvt {

/// A number as 1.23456 * 10^exponent.
struct CSixDigits {
    std::uint32_t digits = 0;  // 100000 to 999999
    int exponent = 0;
};

/// Rounds a positive number. Returns false for one that is left to the library.
bool RoundToSixDigits(double number, CSixDigits& rounded) noexcept;

}  // namespace satwecvt
