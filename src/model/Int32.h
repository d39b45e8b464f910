// 32-bit integer arithmetic with an answer for every input: the files may hold any number, and none of them may end
// in undefined behaviour.
#pragma once

#include <cstdint>
#include <limits>

namespace satwecvt {

/// Whether a number, truncated toward zero, is an integer of 32 bits.
constexpr bool FitsInt32(double number) noexcept
{
    constexpr double kBelow = -2147483649.0;
    constexpr double kAbove = 2147483648.0;
    return number > kBelow && number < kAbove;
}

/// The integer that a number of an input line stands for: truncated toward zero; beyond 32 bits the nearest limit;
/// 0 for a NaN.
constexpr std::int32_t TruncateToInt32(double number) noexcept
{
    using Limits = std::numeric_limits<std::int32_t>;
    if (FitsInt32(number)) {
        return static_cast<std::int32_t>(number);
    }
    const bool isNumber = number == number;
    const std::int32_t limit = number < 0.0 ? (Limits::min)() : (Limits::max)();
    return isNumber ? limit : 0;
}

/// a + b, wrapping at 32 bits.
constexpr std::int32_t WrappedSum(std::int32_t a, std::int32_t b) noexcept
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

/// |a|, wrapping at 32 bits: the smallest integer stays itself.
constexpr std::int32_t WrappedAbs(std::int32_t a) noexcept
{
    return a < 0 ? static_cast<std::int32_t>(0U - static_cast<std::uint32_t>(a)) : a;
}

}  // namespace satwecvt
