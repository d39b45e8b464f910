// Decimal numbers are read by fast_float, which is exact, and written by printf, which is, too.

#include "doubles/OwnCharConversion.h"

#include <charconv>

#if !defined(__cpp_lib_to_chars) || defined(SATWECVT_DEVELOPER)  // where it is needed, and where it is tested

#include "doubles/BitCast.h"
#include "doubles/HexNumber.h"

#include <fast_float/fast_float.h>

#include <algorithm>
#include <array>
#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>
#include <string_view>
#include <system_error>

namespace satwecvt::own {

namespace {

/// Whether a decimal number, as far as its exponent, has a digit that is not 0.
bool IsAboveZero(const char* first, const char* last) noexcept
{
    const char* const exponent = std::find_if(first, last, [](char c) { return c == 'e' || c == 'E'; });
    return std::any_of(first, exponent, [](char c) { return c >= '1' && c <= '9'; });
}

std::to_chars_result Put(char* first, char* last, std::string_view text) noexcept
{
    if (text.size() > static_cast<std::size_t>(last - first)) {
        return {last, std::errc::value_too_large};
    }
    return {std::copy(text.begin(), text.end(), first), std::errc()};
}

using CText = std::array<char, 512>;  // more than a double of any format has

/// What printf writes, with a point whatever the locale has.
std::string_view Print(CText& text, const char* format, int digits, double value) noexcept
{
    const int length = std::snprintf(text.data(), text.size(), format, digits, value);
    const std::string_view written(text.data(), static_cast<std::size_t>(length));
    const std::string_view point = std::localeconv()->decimal_point;
    const std::size_t at = point == "." ? std::string_view::npos : written.find(point);
    if (at == std::string_view::npos) {
        return written;
    }
    text[at] = '.';
    const auto behind = text.begin() + static_cast<std::ptrdiff_t>(at);
    std::copy(behind + static_cast<std::ptrdiff_t>(point.size()), text.begin() + length, behind + 1);
    return written.substr(0, written.size() - point.size() + 1);
}

/// Whether "d.ddde+xx" is read back as a value.
bool IsReadAs(std::string_view text, double value) noexcept
{
    double read = 0.0;
    fast_float::from_chars(text.data(), text.data() + text.size(), read);
    return read == value;
}

/// Adds one to the last digit of "d.ddde+xx". Returns whether there was room for it.
bool Increment(char* text, std::size_t mantissaLength) noexcept
{
    for (std::size_t i = mantissaLength; i > 0; --i) {
        char& c = text[i - 1];
        if (c != '.' && c != '9') {
            ++c;
            return true;
        }
        c = c == '.' ? '.' : '0';
    }
    return false;
}

/// Writes the fewest digits as "d.ddde+xx". Below a power of two doubles lie closer than above it, so that a text
/// farther off but above may be read back where the nearest one is not.
std::string_view PrintShortest(CText& text, double value) noexcept
{
    constexpr int kMostDigits = std::numeric_limits<double>::max_digits10;
    const bool isPowerOfTwo = (bit_cast<std::uint64_t>(value) << 12) == 0;
    for (int digits = 1; digits < kMostDigits; ++digits) {
        std::string_view written = Print(text, "%.*e", digits - 1, value);
        if (IsReadAs(written, value)) {
            return written;
        }
        if (isPowerOfTwo && Increment(text.data(), written.find('e')) && IsReadAs(written, value)) {
            return written;
        }
    }
    return Print(text, "%.*e", kMostDigits - 1, value);
}

/// A number without an exponent, of the digits of the one that has one.
std::string WithoutExponent(std::string_view scientific, double value)
{
    const std::size_t e = scientific.find('e');
    std::string digits(scientific.substr(0, e));
    std::erase(digits, '.');
    const int exponent = std::stoi(std::string(scientific.substr(e + 1)));
    if (exponent < 0) {
        return "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    }
    const auto beforePoint = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() > beforePoint) {
        return digits.insert(beforePoint, ".");
    }
    CText text;
    return std::string(Print(text, "%.*f", 0, value));  // all digits that it has, zeros would not be true
}

}  // namespace

std::from_chars_result FromChars(const char* first, const char* last, double& value, std::chars_format format) noexcept
{
    const bool isNegative = first != last && *first == '-';
    if (format == std::chars_format::hex) {
        double magnitude = 0.0;
        const std::from_chars_result result = FromHex(first + (isNegative ? 1 : 0), last, magnitude);
        if (result.ec == std::errc()) {
            value = isNegative ? -magnitude : magnitude;
        }
        return result.ec == std::errc::invalid_argument ? std::from_chars_result{first, result.ec} : result;
    }
    double read = 0.0;
    const auto [end, error] = fast_float::from_chars(first, last, read);
    if (error != std::errc()) {
        return {first, error};
    }
    const char* const digits = first + (isNegative ? 1 : 0);
    const bool isNumber = IsDigit(*digits) || *digits == '.';
    if (isNumber && (std::isinf(read) || (read == 0.0 && IsAboveZero(digits, end)))) {
        return {end, std::errc::result_out_of_range};
    }
    value = read;
    return {end, error};
}

std::to_chars_result ToChars(char* first, char* last, double value)
{
    if (!std::isfinite(value) || value == 0.0) {
        return ToChars(first, last, value, 1);
    }
    CText text;
    const std::string_view scientific = PrintShortest(text, std::abs(value));
    const std::string plain = WithoutExponent(scientific, std::abs(value));
    const std::string sign = value < 0.0 ? "-" : "";
    return Put(first, last, plain.size() <= scientific.size() ? sign + plain : sign + std::string(scientific));
}

std::to_chars_result ToChars(char* first, char* last, double value, int digits) noexcept
{
    CText text;
    return Put(first, last, Print(text, "%.*g", digits, value));
}

}  // namespace satwecvt::own

#endif
