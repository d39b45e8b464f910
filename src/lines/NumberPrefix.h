#pragma once

#include <cstddef>
#include <string_view>

namespace satwecvt {

/// The start of a text that is a number.
struct CNumberPrefix {
    double value = 0.0;
    std::size_t length = 0;  // characters up to its end, white space in front of it included; 0 when there is none
};

/// The longest prefix prefix of a text that is a number, as C's `strtod` reads it in the "C" locale: white space, a
/// sign, decimal digits with an exponent, hexadecimal floats, INF and NAN words. Overflow gives an infinity, underflow
/// the nearest subnormal number or 0. Does not depend on the process's locale, does not allocate, does not fail.
CNumberPrefix FindNumberPrefix(std::string_view text) noexcept;

/// The value of that prefix; 0 when there is none.
inline double ParseNumberPrefix(std::string_view text) noexcept
{
    return FindNumberPrefix(text).value;
}

}  // namespace satwecvt
