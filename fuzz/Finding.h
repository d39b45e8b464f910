// How a fuzz program tells that something is wrong.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace satwecvt {

/// Prints what is wrong and aborts, so that the fuzzer keeps the input.
[[noreturn]] void Fail(std::string_view what);

/// The same unless a condition holds. Where the text has to be put together first, ask before calling `Fail` instead.
inline void Expect(bool holds, std::string_view what)
{
    if (!holds) {
        Fail(what);
    }
}

/// Whether two doubles are the same bits, or both no number.
inline bool IsSameNumber(double a, double b)
{
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) || (a != a && b != b);
}

/// The bytes of an input as text.
inline std::string TextOf(const std::uint8_t* data, std::size_t size)
{
    return {data, data + size};
}

/// A text with its unusual bytes written as \xNN, for a message.
std::string Printable(std::string_view text);

}  // namespace satwecvt
