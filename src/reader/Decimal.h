// Reads a decimal number exactly, where that takes few steps.
//
// The digits go into a 64-bit integer. When it is at most 2^53, it is a double without loss, and so are the powers of
// ten up to 10^22: their product or quotient is then rounded once, to the double nearest to the decimal number, which
// is the definition of the right answer. Longer numbers and larger exponents are left to `std::from_chars`.
#pragma once

namespace satwecvt {

/// Reads the digits, point and exponent of a number without a sign, and moves `at` behind them. The text has to end
/// with a character that is none of these, as a newline. Answers false when there is no digit, when an exponent's
/// letter has no digit behind it, or when the number has more than 19 digits; `at` and `value` are anything then.
bool ReadDecimal(const char*& at, double& value) noexcept;

}  // namespace satwecvt
