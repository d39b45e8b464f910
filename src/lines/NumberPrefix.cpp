// `std::from_chars` reads the numbers. Around it stands what `strtod` does and `from_chars` does not: leading white
// space, a plus sign, the prefix 0x, and a value for numbers too large or too small for a double.

#include "lines/NumberPrefix.h"

#include "doubles/CharConversion.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <system_error>

namespace satwecvt {

namespace {

constexpr bool IsSpace(char c) noexcept
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

constexpr bool IsDigit(char c) noexcept
{
    return c >= '0' && c <= '9';
}

constexpr bool IsHexDigit(char c) noexcept
{
    return IsDigit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

/// Whether a text starts a hexadecimal float: 0x and a digit, or 0x, a point and a digit.
bool StartsHex(const char* first, const char* last) noexcept
{
    if (last - first < 3 || first[0] != '0' || (first[1] != 'x' && first[1] != 'X')) {
        return false;
    }
    return IsHexDigit(first[2]) || (first[2] == '.' && last - first > 3 && IsHexDigit(first[3]));
}

/// The end of a hexadecimal number for `from_chars`, which takes two signs in front of an exponent, where none but one
/// belongs to the number.
const char* EndBeforeTwoSigns(const char* first, const char* last) noexcept
{
    const char* const power = std::find_if(first, last, [](char c) { return c == 'p' || c == 'P'; });
    const auto isSign = [](char c) { return c == '+' || c == '-'; };
    const bool hasTwoSigns = last - power > 2 && isSign(power[1]) && isSign(power[2]);
    return hasTwoSigns ? power : last;
}

/// The value of a number that `from_chars` found too large or too small: an infinity or 0. Which of them is told by
/// the power of the first digit that is not 0, the exponent included.
double OutOfRangeValue(const char* first, const char* last, bool isHex) noexcept
{
    std::int64_t power = 0;  // of the leading digit, before the exponent: digits in front of the point, or minus the
    bool seenPoint = false;  // zeros behind it
    bool seenLeading = false;
    const char* at = first;
    for (; at != last && (*at == '.' || IsDigit(*at) || (isHex && IsHexDigit(*at))); ++at) {
        if (*at == '.') {
            seenPoint = true;
        } else {
            seenLeading = seenLeading || *at != '0';
            power += seenLeading && !seenPoint ? 1 : 0;
            power -= !seenLeading && seenPoint ? 1 : 0;
        }
    }
    std::int64_t exponent = 0;
    if (last - at > 1) {  // the letter of the exponent, its sign, its digits
        const bool isNegative = at[1] == '-';
        at += isNegative || at[1] == '+' ? 2 : 1;
        constexpr std::int64_t kLarge = std::int64_t{1} << 58;
        for (; at != last; ++at) {
            exponent = std::min(exponent * 10 + (*at - '0'), kLarge);
        }
        exponent = isNegative ? -exponent : exponent;
    }
    return (isHex ? 4 : 1) * power + exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

}  // namespace

CNumberPrefix FindNumberPrefix(std::string_view text) noexcept
{
    const char* first = text.data();
    const char* last = first + text.size();
    while (first != last && IsSpace(*first)) {
        ++first;
    }
    const bool isNegative = first != last && *first == '-';
    if (first != last && (*first == '-' || *first == '+')) {
        ++first;
    }
    if (first == last || *first == '-') {  // one sign is enough, and `from_chars` would take a second one
        return {};
    }
    const bool isHex = StartsHex(first, last);
    if (isHex) {
        first += 2;
        last = EndBeforeTwoSigns(first, last);
    }
    double value = 0.0;
    const auto [end, error] =
        FromChars(first, last, value, isHex ? std::chars_format::hex : std::chars_format::general);
    if (error == std::errc::invalid_argument) {
        return {};
    }
    if (error == std::errc::result_out_of_range) {
        value = OutOfRangeValue(first, end, isHex);
    }
    return {isNegative ? -value : value, static_cast<std::size_t>(end - text.data())};
}

}  // namespace satwecvt
