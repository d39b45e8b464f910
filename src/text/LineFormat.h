// The printf formats of the output lines, taken apart and checked by the compiler: "%d" takes a 32-bit integer, "%g" a
// double, "%s" a text. Nothing else is a conversion, and a format that does not fit its arguments does not compile.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

namespace satwecvt {

template <class Argument>
consteval char ConversionOf()
{
    if constexpr (std::is_same_v<Argument, std::int32_t>) {
        return 'd';
    } else if constexpr (std::is_same_v<Argument, double>) {
        return 'g';
    } else {
        static_assert(std::is_convertible_v<Argument, std::string_view>, "a line takes integers, doubles and texts");
        return 's';
    }
}

template <class... Arguments>
class CLineFormat {
public:
    static constexpr std::size_t kArguments = sizeof...(Arguments);

    // Implicit, so that a format stands in a call as a plain text.
    template <std::size_t Size>
    consteval CLineFormat(const char (&format)[Size])
    {
        constexpr std::array<char, kArguments + 1> kConversions{ConversionOf<std::decay_t<Arguments>>()..., '\0'};
        const std::string_view text(format, Size - 1);
        std::size_t from = 0;
        for (std::size_t i = 0; i < kArguments; ++i) {
            const std::size_t percent = text.find('%', from);
            if (percent == std::string_view::npos || text[percent + 1] != kConversions[i]) {
                throw "the conversions of the format do not fit the arguments";
            }
            literals[i] = text.substr(from, percent - from);
            from = percent + 2;
        }
        literals[kArguments] = text.substr(from);
        if (literals[kArguments].find('%') != std::string_view::npos) {
            throw "the format has more conversions than there are arguments";
        }
    }

    /// The text in front of the argument with this position; behind the last argument for `kArguments`.
    constexpr std::string_view Literal(std::size_t position) const noexcept { return literals[position]; }

private:
    std::array<std::string_view, kArguments + 1> literals{};
};

}  // namespace satwecvt
