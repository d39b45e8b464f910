#include "text/NumberText.h"

#include "doubles/CharConversion.h"
#include "text/SixDigits.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace satwecvt {

namespace {

char* Put(char* to, std::string_view text) noexcept
{
    return to + text.copy(to, text.size());
}

/// The six digits as a text, without the zeros at its end.
std::string_view DigitsText(std::uint32_t digits, char (&text)[6]) noexcept
{
    for (std::size_t i = sizeof(text); i > 0; --i) {
        text[i - 1] = static_cast<char>('0' + digits % 10);
        digits /= 10;
    }
    std::size_t length = sizeof(text);
    while (length > 1 && text[length - 1] == '0') {
        --length;
    }
    return {text, length};
}

/// 0.00123 or 12.3 or 1200.
char* WriteFixed(char* to, std::string_view digits, int exponent) noexcept
{
    if (exponent < 0) {
        constexpr std::string_view kZeros = "0.000";
        to = Put(to, kZeros.substr(0, static_cast<std::size_t>(1 - exponent)));
        return Put(to, digits);
    }
    const auto beforePoint = static_cast<std::size_t>(exponent) + 1;
    to = Put(to, digits.substr(0, beforePoint));
    if (digits.size() <= beforePoint) {
        return std::fill_n(to, beforePoint - digits.size(), '0');
    }
    *to++ = '.';
    return Put(to, digits.substr(beforePoint));
}

/// 1.23e+08; an exponent of two digits, which all have that come here.
char* WriteScientific(char* to, std::string_view digits, int exponent) noexcept
{
    *to++ = digits.front();
    if (digits.size() > 1) {
        *to++ = '.';
        to = Put(to, digits.substr(1));
    }
    const int magnitude = exponent < 0 ? -exponent : exponent;
    *to++ = 'e';
    *to++ = exponent < 0 ? '-' : '+';
    *to++ = static_cast<char>('0' + magnitude / 10);
    *to++ = static_cast<char>('0' + magnitude % 10);
    return to;
}

}  // namespace

char* WriteReal(char* to, double number) noexcept
{
    if (std::isnan(number)) {
        return Put(to, "nan");
    }
    char* const begin = to;
    const double magnitude = std::abs(number);
    if (std::signbit(number)) {
        *to++ = '-';
    }
    constexpr double kMillion = 1e6;
    if (magnitude < kMillion) {
        const auto integer = static_cast<std::int32_t>(magnitude);
        if (static_cast<double>(integer) == magnitude) {
            return WriteInteger(to, integer);
        }
    }
    CSixDigits rounded;
    if (!RoundToSixDigits(magnitude, rounded)) {
        return ToChars(begin, begin + kMostRealCharacters, number, 6).ptr;
    }
    char text[6];
    const std::string_view digits = DigitsText(rounded.digits, text);
    const bool isFixed = rounded.exponent >= -4 && rounded.exponent < 6;
    return isFixed ? WriteFixed(to, digits, rounded.exponent) : WriteScientific(to, digits, rounded.exponent);
}

}  // namespace satwecvt
