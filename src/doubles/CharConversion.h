// Doubles from characters and as characters, by `std::from_chars` and `std::to_chars`; by ways of our own where the
// standard library has them for integers alone, as that of some compilers does.
#pragma once

#include "doubles/DoublePrecision.h"

#include <charconv>

#ifndef __cpp_lib_to_chars
#include "doubles/OwnCharConversion.h"
#endif

namespace satwecvt {

#ifdef __cpp_lib_to_chars
inline std::from_chars_result FromChars(const char* first, const char* last, double& value,
                                        std::chars_format format = std::chars_format::general) noexcept
{
    [[maybe_unused]] const CDoublePrecision precision;
    return std::from_chars(first, last, value, format);
}

/// The shortest text that is read back as the same double.
inline std::to_chars_result ToChars(char* first, char* last, double value)
{
    return std::to_chars(first, last, value);
}

/// As printf's "%.*g" writes it.
inline std::to_chars_result ToChars(char* first, char* last, double value, int digits) noexcept
{
    return std::to_chars(first, last, value, std::chars_format::general, digits);
}
#else
using own::FromChars;
using own::ToChars;
#endif

}  // namespace satwecvt
