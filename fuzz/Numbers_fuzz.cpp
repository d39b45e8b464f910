// Numbers in and out against the C library: strtod, and printf's %g and %d.
#include "Finding.h"
#include "FuzzTarget.h"
#include "lines/Decimal.h"
#include "lines/NumberPrefix.h"
#include "text/NumberText.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace satwecvt {
namespace {

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// What the longest decimal number without a sign is at the start of a text, by the rules of `ReadDecimal`.
struct CDecimalText {
    std::size_t length = 0;
    std::size_t digits = 0;
    bool isWhole = true;  // no exponent's letter without a digit behind it

    explicit CDecimalText(const std::string& text)
    {
        for (bool hasPoint = false; IsDigit(text[length]) || (text[length] == '.' && !hasPoint); ++length) {
            hasPoint = hasPoint || text[length] == '.';
            digits += IsDigit(text[length]) ? 1U : 0U;
        }
        if (text[length] == 'E' || text[length] == 'e') {
            ++length;
            length += text[length] == '+' || text[length] == '-' ? 1U : 0U;
            isWhole = IsDigit(text[length]);
            while (IsDigit(text[length])) {
                ++length;
            }
        }
    }
};

void CheckDecimal(const std::string& text)
{
    const std::string line = text + '\n';
    const CDecimalText expected(line);
    const char* at = line.data();
    double value = 0.0;
    const bool isRead = ReadDecimal(at, value);
    const std::string taken = line.substr(0, expected.length);
    const double number = std::strtod(taken.c_str(), nullptr);
    const bool isTaken = expected.digits >= 1 && expected.digits <= 19 && expected.isWhole;
    const bool mayBeLeft = !std::isnormal(number);  // out of a double's range: left to `ParseNumberPrefix`
    if (isRead != isTaken && !(isTaken && mayBeLeft)) {
        Fail("ReadDecimal takes or leaves '" + Printable(text) + "' wrongly");
    }
    if (isRead) {
        if (!IsSameNumber(number, value) || at != line.data() + expected.length) {
            Fail("ReadDecimal is wrong about '" + Printable(text) + "'");
        }
    }
}

void CheckReal(double number)
{
    std::array<char, 64> expected{};
    std::snprintf(expected.data(), expected.size(), "%g", number);
    const std::string expectedText = number != number ? "nan" : expected.data();
    std::array<char, kMostRealCharacters> actual{};
    const std::string actualText(actual.data(), WriteReal(actual.data(), number));
    if (expectedText != actualText) {
        Fail("WriteReal writes " + actualText + " for " + expectedText);
    }
}

void CheckInteger(std::int32_t number)
{
    std::array<char, kMostIntegerCharacters> actual{};
    const std::string actualText(actual.data(), WriteInteger(actual.data(), number));
    if (std::to_string(number) != actualText) {
        Fail("WriteInteger writes " + actualText + " for " + std::to_string(number));
    }
}

void CheckText(const std::string& text)
{
    const double expected = std::strtod(text.c_str(), nullptr);
    if (!IsSameNumber(expected, ParseNumberPrefix(text))) {
        Fail("ParseNumberPrefix is wrong about '" + Printable(text) + "'");
    }
    CheckDecimal(text);
    CheckReal(expected);
    CheckReal(-expected);
}

/// The text's first bytes as the bits of a number.
void CheckBits(const std::string& text)
{
    std::uint64_t bits = 0;
    if (text.size() >= sizeof bits) {
        std::memcpy(&bits, text.data(), sizeof bits);
        CheckReal(std::bit_cast<double>(bits));
        CheckInteger(static_cast<std::int32_t>(bits));
    }
}

}  // namespace
}  // namespace satwecvt

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text = satwecvt::TextOf(data, size);
    satwecvt::CheckBits(text);
    satwecvt::CheckText(text.substr(0, text.find('\0')));
    return 0;
}
