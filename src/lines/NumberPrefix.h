#pragma once

#include <string_view>

namespace satwecvt {

/// The value of the longest prefix of a text that is a number, as C's `strtod` reads it in the "C" locale: white space,
/// a sign, decimal digits with an exponent, hexadecimal floats, INF and NAN words. 0 when there is no such prefix.
/// Overflow gives an infinity, underflow the nearest subnormal number or 0. Does not depend on the process's locale,
/// does not allocate, does not fail.
double ParseNumberPrefix(std::string_view text) noexcept;

}  // namespace satwecvt
