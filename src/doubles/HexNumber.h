#pragma once

#include <charconv>

namespace satwecvt::own {

constexpr bool IsDigit(char c) noexcept
{
    return c >= '0' && c <= '9';
}

/// Reads a hexadecimal number without sign and prefix, as `std::from_chars` does: "1.8p3" is 12. Its digits are bits
/// already, and are rounded once, to nearest, ties to even.
std::from_chars_result FromHex(const char* first, const char* last, double& value) noexcept;

}  // namespace satwecvt::own
