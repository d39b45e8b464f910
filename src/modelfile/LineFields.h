// The fields of a line of data, from left to right. They are parted by a comma and one blank.
//
//   integer   as printf's %d writes it, of 32 bits
//   real      [-] digits [. digits] [e [sign] digits] with at most 19 digits and within the range of a double, where a
//             first 0 is the only digit in front of the point; or inf, -inf, nan
//   text      stands for itself
#pragma once

#include "lines/Decimal.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <system_error>

namespace satwecvt {

class CLineFields {
public:
    /// Behind the line has to stand a character that belongs to no number, as its line feed.
    explicit CLineFields(std::string_view line) noexcept : at(line.data()), end(at + line.size()) {}

    bool IsDone() const noexcept { return at == end; }

    /// Each takes what comes next, or returns false; the object is of no use then, except after a text.
    [[nodiscard]] bool Take(std::string_view text) noexcept;
    [[nodiscard]] bool Take(std::int32_t& value) noexcept;
    [[nodiscard]] bool Take(double& value) noexcept;

    template <typename TNumber, std::size_t kCount>
    [[nodiscard]] bool Take(std::array<TNumber, kCount>& values) noexcept;

    /// Takes several fields.
    template <typename TFirst, typename... TOthers>
    [[nodiscard]] bool TakeFields(TFirst&& first, TOthers&&... others) noexcept
    {
        return Take(first) && (... && (Take(", ") && Take(others)));
    }

    /// Takes all characters in front of the next comma or the end of the line.
    std::string_view TakeWord() noexcept;

private:
    static constexpr bool IsDigit(char c) noexcept { return c >= '0' && c <= '9'; }

    const char* at;
    const char* end;
};

/// Whether a line is these fields behind an indent, and nothing more.
template <typename... TFields>
[[nodiscard]] bool Fits(std::string_view line, std::string_view indent, TFields&&... fields) noexcept
{
    CLineFields rest(line);
    return rest.Take(indent) && rest.TakeFields(fields...) && rest.IsDone();
}

inline bool CLineFields::Take(std::string_view text) noexcept
{
    const std::string_view rest(at, static_cast<std::size_t>(end - at));
    if (!rest.starts_with(text)) {
        return false;
    }
    at += text.size();
    return true;
}

inline bool CLineFields::Take(std::int32_t& value) noexcept
{
    const bool isNegative = *at == '-';
    const char* const digits = at + (isNegative ? 1 : 0);
    if (*digits == '0' && (isNegative || IsDigit(digits[1]))) {
        return false;
    }
    const auto [behind, error] = std::from_chars(at, end, value);
    at = behind;
    return error == std::errc();
}

inline bool CLineFields::Take(double& value) noexcept
{
    const bool isNegative = *at == '-';
    at += isNegative ? 1 : 0;
    if (!IsDigit(*at)) {
        value = isNegative ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::infinity();
        if (Take("inf")) {
            return true;
        }
        value = std::numeric_limits<double>::quiet_NaN();
        return !isNegative && Take("nan");
    }
    const char* point = at + 1;
    while (*at != '0' && IsDigit(*point)) {
        ++point;
    }
    if (IsDigit(*point) || (*point == '.' && !IsDigit(point[1])) || !ReadDecimal(at, value)) {
        return false;
    }
    value = isNegative ? -value : value;
    return true;
}

template <typename TNumber, std::size_t kCount>
bool CLineFields::Take(std::array<TNumber, kCount>& values) noexcept
{
    for (TNumber& value : values) {
        if ((&value != values.data() && !Take(", ")) || !Take(value)) {
            return false;
        }
    }
    return true;
}

inline std::string_view CLineFields::TakeWord() noexcept
{
    const std::string_view rest(at, static_cast<std::size_t>(end - at));
    const std::string_view word = rest.substr(0, rest.find(','));
    at += word.size();
    return word;
}

}  // namespace satwecvt
