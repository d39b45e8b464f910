#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>

namespace satwecvt {

/// The most characters that a number takes.
inline constexpr std::size_t kMostIntegerCharacters = 11;  // -2147483648
inline constexpr std::size_t kMostRealCharacters = 13;     // -1.23457e-308

/// Writes an integer as printf's "%d" and returns the end of the text; `to` has room for `kMostIntegerCharacters`.
inline char* WriteInteger(char* to, std::int32_t number) noexcept
{
    return std::to_chars(to, to + kMostIntegerCharacters, number).ptr;
}

/// Writes a real as printf's "%g" in the "C" locale, whatever the process's: six significant digits, a two-digit
/// exponent, "inf", and "nan" whatever its sign. Returns the end of the text; `to` has room for `kMostRealCharacters`.
char* WriteReal(char* to, double number) noexcept;

}  // namespace satwecvt
