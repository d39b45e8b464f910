#include "picture/PlanText.h"

#include "doubles/CharConversion.h"
#include "finding/Quoted.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace satwecvt {

namespace {

unsigned ByteAt(std::string_view text, std::size_t position) noexcept
{
    return position < text.size() ? static_cast<unsigned char>(text[position]) : 0U;
}

bool IsContinuation(char c) noexcept
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// How many bytes a character takes by its first one.
std::size_t LengthBy(unsigned first) noexcept
{
    return first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC0 ? 2 : 0;
}

/// Whether a character may be shown: no control character, no half of a pair, none that stands for nothing.
bool IsShown(std::uint32_t code) noexcept
{
    const bool isControl = code < 0x20 || (code >= 0x7F && code < 0xA0);
    const bool isHalf = code >= 0xD800 && code < 0xE000;
    return !isControl && !isHalf && code != 0xFFFE && code != 0xFFFF && code <= 0x10FFFF;
}

/// How many bytes the first character of a text takes, or 0 where it is none that is shown.
std::size_t ShownBytes(std::string_view text) noexcept
{
    constexpr std::array<std::uint32_t, 5> kLeast{0, 0, 0x80, 0x800, 0x10000};  // what so many bytes are needed for
    const std::size_t length = LengthBy(ByteAt(text, 0));
    if (length == 0 || length > text.size()) {
        return 0;
    }
    std::uint32_t code = length == 1 ? ByteAt(text, 0) : ByteAt(text, 0) & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsContinuation(text[i])) {
            return 0;
        }
        code = code << 6U | (ByteAt(text, i) & 0x3FU);
    }
    return code >= kLeast[length] && IsShown(code) ? length : 0;
}

/// As a multiple of the height of the letters. Beyond Latin most characters are as wide as high.
double WidthBy(char first) noexcept
{
    return IsContinuation(first) ? 0.0 : static_cast<unsigned char>(first) >= 0xE0 ? 1.0 : 0.57;
}

}  // namespace

std::string ShownText(std::string_view bytes)
{
    std::string shown;
    while (!bytes.empty()) {
        const std::size_t length = ShownBytes(bytes);
        if (length == 0) {
            AppendByteNumber(shown, bytes.front());
            bytes.remove_prefix(1);
        } else {
            shown += bytes.substr(0, length);
            bytes.remove_prefix(length);
        }
    }
    return shown;
}

std::string ShownEnd(const std::string& shown, double width)
{
    constexpr std::string_view kDots = "...";
    if (TextWidth(shown) <= width) {
        return shown;
    }
    double used = TextWidth(kDots);
    std::size_t start = shown.size();
    for (std::size_t i = shown.size(); i-- > 0 && used + WidthBy(shown[i]) <= width;) {
        used += WidthBy(shown[i]);
        start = IsContinuation(shown[i]) ? start : i;
    }
    return std::string(kDots) + shown.substr(start);
}

double TextWidth(std::string_view shown) noexcept
{
    double width = 0.0;
    for (const char c : shown) {
        width += WidthBy(c);
    }
    return width;
}

void AppendXml(std::string& xml, std::string_view shown)
{
    for (const char c : shown) {
        switch (c) {
        case '&':
            xml += "&amp;";
            break;
        case '<':
            xml += "&lt;";
            break;
        case '>':
            xml += "&gt;";
            break;
        default:
            xml += c;
            break;
        }
    }
}

std::string LengthText(double length)
{
    if (std::isnan(length)) {
        return "nan";  // whose sign belongs to the processor
    }
    constexpr double kMost = 1e9;
    std::array<char, 32> digits{};
    char* const end = digits.data() + digits.size();
    if (!(std::abs(length) < kMost)) {
        return {digits.data(), ToChars(digits.data(), end, length).ptr};
    }
    const auto millionths = static_cast<std::int64_t>(std::floor(std::abs(length) * 1e6 + 0.5));
    std::string text = (length < 0.0 && millionths != 0 ? "-" : "") + std::to_string(millionths / 1'000'000);
    if (std::int64_t rest = millionths % 1'000'000; rest != 0) {
        std::string decimals = std::to_string(1'000'000 + rest);
        decimals.front() = '.';
        text += decimals.substr(0, decimals.find_last_not_of('0') + 1);
    }
    return text;
}

}  // namespace satwecvt
