// What `std::from_chars` and `std::to_chars` do with doubles, for standard libraries that do it with integers alone:
// the same values, the same ends, the same errors, the same characters.
#pragma once

#include <charconv>

namespace satwecvt::own {

/// `format` is general or hex. A value beyond the range of doubles is left as it was.
std::from_chars_result FromChars(const char* first, const char* last, double& value,
                                 std::chars_format format = std::chars_format::general) noexcept;

/// The shortest text that is read back as the same double; of two such, the one without an exponent. Throws
/// std::bad_alloc.
std::to_chars_result ToChars(char* first, char* last, double value);

/// As printf's "%.*g" writes it in the "C" locale.
std::to_chars_result ToChars(char* first, char* last, double value, int digits) noexcept;

}  // namespace satwecvt::own
