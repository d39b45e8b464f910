#include "lines/NumberPrefix.h"

#include "doubles/BitCast.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace satwecvt {
namespace {

using namespace std::string_literals;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kSmallest = std::numeric_limits<double>::denorm_min();
constexpr double kSmallestNormal = std::numeric_limits<double>::min();

/// Whether two doubles are the same to the bit; all NaNs are one.
bool AreSame(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) || bit_cast<std::uint64_t>(a) == bit_cast<std::uint64_t>(b);
}

struct CExample {
    std::string text;
    double expected;
};

void ExpectValues(const std::vector<CExample>& table)
{
    for (const CExample& example : table) {
        const double value = ParseNumberPrefix(example.text);
        EXPECT_TRUE(AreSame(example.expected, value)) << example.text << " gives " << value;
    }
}

TEST(NumberPrefix, DecimalNumbers)
{
    ExpectValues({{"0", 0.0},
                  {"42", 42.0},
                  {"007", 7.0},
                  {"+5", 5.0},
                  {"-5", -5.0},
                  {"-0", -0.0},
                  {".5", 0.5},
                  {"5.", 5.0},
                  {"-.25", -0.25},
                  {"1.5E3", 1500.0},
                  {"1.5e-3", 0.0015},
                  {"1E+3", 1000.0},
                  {"1E03", 1000.0},
                  {".5E1", 5.0},
                  {"0.1", 0.1},
                  {"123456789012345678901234567890", 123456789012345678901234567890.0}});
}

TEST(NumberPrefix, WhatFollowsTheNumberIsIgnored)
{
    ExpectValues({{"12ABC", 12.0},
                  {"1.2.3", 1.2},
                  {"7 8", 7.0},
                  {"7,8", 7.0},
                  {"3\n4", 3.0},
                  {"3\0004"s, 3.0},
                  {"1E", 1.0},
                  {"1E+", 1.0},
                  {"1E-X", 1.0},
                  {"1E 5", 1.0},
                  {"1D5", 1.0},
                  {"5-3", 5.0}});
}

TEST(NumberPrefix, WhiteSpaceInFrontIsPassedOver)
{
    ExpectValues({{" \t\n\v\f\r 12", 12.0},
                  {"  -1", -1.0},
                  {"\n", 0.0},
                  {"\b1", 0.0},
                  {"\xA0"
                   "1",
                   0.0}});
}

TEST(NumberPrefix, ATextThatIsNoNumberIs0)
{
    ExpectValues({{"", 0.0},    {"ABC", 0.0}, {"+", 0.0},   {"-", 0.0},  {"-X", 0.0}, {"--5", 0.0}, {"+-5", 0.0},
                  {"-+5", 0.0}, {"++5", 0.0}, {"- 5", 0.0}, {".", 0.0},  {"-.", 0.0}, {"E5", 0.0},  {".E5", 0.0},
                  {"*", 0.0},   {"\0"s, 0.0}, {"C30", 0.0}, {"$1", 0.0}, {",5", 0.0}, {"'1'", 0.0}});
}

TEST(NumberPrefix, HexadecimalNumbers)
{
    ExpectValues({{"0x10", 16.0},
                  {"0XFF", 255.0},
                  {"-0xfF", -255.0},
                  {"0x1P4", 16.0},
                  {"0x1.8p1", 3.0},
                  {"0x.8", 0.5},
                  {"0x8.", 8.0},
                  {"0x1P-1074", kSmallest},
                  {"0x1.fffffffffffffP+1023", kLargest}});
}

TEST(NumberPrefix, AnIncompleteHexadecimalNumberIsItsLeading0)
{
    ExpectValues(
        {{"0x", 0.0}, {"-0X", -0.0}, {"0x.", 0.0}, {"0xG", 0.0}, {"0xP1", 0.0}, {"0x.P1", 0.0}, {"0x-1", 0.0}});
}

TEST(NumberPrefix, AHexadecimalExponentWithoutDigitsIsIgnored)
{
    ExpectValues({{"0x1P", 1.0}, {"0x1P+", 1.0}, {"0x1P-Z", 1.0}, {"0x1E+5", 30.0}});
}

TEST(NumberPrefix, WordsForInfinityAndNan)
{
    ExpectValues({{"INF", kInfinity},
                  {"inf", kInfinity},
                  {"-Inf", -kInfinity},
                  {"+INFINITY", kInfinity},
                  {"INFINIT", kInfinity},
                  {"INFX", kInfinity},
                  {"IN", 0.0},
                  {"NAN", std::nan("")},
                  {"-nan", std::nan("")},
                  {"NAN(12)", std::nan("")},
                  {"NAN(", std::nan("")},
                  {"NA", 0.0}});
}

TEST(NumberPrefix, OverflowIsAnInfinity)
{
    ExpectValues({{"1E309", kInfinity},
                  {"-1E309", -kInfinity},
                  {"1.7976931348623157E308", kLargest},
                  {"1.7976931348623159E308", kInfinity},
                  {"1E99999999999999999999", kInfinity},
                  {"0." + std::string(500, '0') + "1E1000", kInfinity},
                  {std::string(400, '9'), kInfinity},
                  {std::string(400, '9') + "E-300", 1e100},
                  {"0x1P1024", kInfinity},
                  {"0x" + std::string(1000, 'F') + "P-2000", kInfinity},
                  {"-0x1P99999999999999999999", -kInfinity}});
}

TEST(NumberPrefix, UnderflowIsTheNearestSubnormalOr0)
{
    ExpectValues({{"2.2250738585072014E-308", kSmallestNormal},
                  {"2.2250738585072011E-308", 0x0.fffffffffffffp-1022},
                  {"4.9E-324", kSmallest},
                  {"2.5E-324", kSmallest},
                  {"2.4E-324", 0.0},
                  {"-1E-400", -0.0},
                  {"1E-99999999999999999999", 0.0},
                  {std::string(500, '1') + "E-1000", 0.0},
                  {"0." + std::string(400, '0') + "1", 0.0},
                  {"0x1P-1075", 0.0},
                  {"0x." + std::string(1000, '0') + "1P2000", 0.0},
                  {"0x1.8P-1075", kSmallest},
                  {"-0x1P-99999999999999999999", -0.0}});
}

TEST(NumberPrefix, ZeroStaysZeroWhateverItsExponent)
{
    ExpectValues({{"0E999999", 0.0},
                  {"-0.000E99999999999999999999", -0.0},
                  {"0E-99999999999999999999", 0.0},
                  {"0x0P9999", 0.0},
                  {"0x0P99999999999999999999", 0.0},
                  {"-0x0.0P-99999999999999999999", -0.0}});
}

TEST(NumberPrefix, LongNumbersAreRoundedToTheNearestDouble)
{
    ExpectValues({{"9007199254740993", 9007199254740992.0},
                  {"9007199254740993." + std::string(400, '0') + "1", 9007199254740994.0},
                  {"9007199254740995", 9007199254740996.0},
                  {"0x1.00000000000008p0", 1.0},
                  {"0x1.000000000000080000000001p0", 0x1.0000000000001p0},
                  {"0x1.00000000000018p0", 0x1.0000000000002p0}});
}

// The run-time library of Windows does not read every number exactly; there the tables above have to do.
#ifndef _WIN32

/// The C library of Emscripten rounds hexadecimal numbers below the normal ones twice.
bool IsMisread([[maybe_unused]] const std::string& text, [[maybe_unused]] double expected)
{
#ifdef __EMSCRIPTEN__
    return text.find('x') != std::string::npos && std::abs(expected) < std::numeric_limits<double>::min();
#else
    return false;
#endif
}

void ExpectAsStrtod(const std::string& text)
{
    const double expected = std::strtod(text.c_str(), nullptr);
    const double value = ParseNumberPrefix(text);
    if (IsMisread(text, expected)) {
        return;
    }
    ASSERT_TRUE(AreSame(expected, value)) << testing::PrintToString(text) << " gives " << value << ", not " << expected;
}

template <class... Arguments>
std::string Printed(const char* format, Arguments... arguments)
{
    std::string text(2000, '\0');
    text.resize(static_cast<std::size_t>(std::snprintf(text.data(), text.size(), format, arguments...)));
    return text;
}

double RandomDouble(std::mt19937_64& random)
{
    return bit_cast<double>(random());
}

std::string RandomText(std::mt19937_64& random, std::string_view alphabet, std::size_t longest)
{
    std::string text(random() % (longest + 1), ' ');
    for (char& c : text) {
        c = alphabet[random() % alphabet.size()];
    }
    return text;
}

TEST(NumberPrefix, RandomTextsAreReadAsByStrtod)
{
    std::mt19937_64 random(1);
    for (int round = 0; round < 100'000; ++round) {
        ExpectAsStrtod(RandomText(random, "0123456789.eE+-", 12));
        ExpectAsStrtod(RandomText(random, "01.eExXpPaF+- ", 10));
        ExpectAsStrtod(RandomText(random, "0x1.pE-", 8));
        ExpectAsStrtod(RandomText(random, "iInNfFtTyYaA()_1-+ ", 9));
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST(NumberPrefix, RandomDecimalNumbersAreReadAsByStrtod)
{
    constexpr std::string_view kDigits = "0123456789";
    std::mt19937_64 random(2);
    for (int round = 0; round < 100'000; ++round) {
        const std::size_t longest = round % 20 == 0 ? 450 : 20;
        const int exponent = static_cast<int>(random() % 900) - 450;
        const std::string number = RandomText(random, kDigits, longest) + "." + RandomText(random, kDigits, longest);
        ExpectAsStrtod(number);
        ExpectAsStrtod("-" + number + "E" + std::to_string(exponent));
        ExpectAsStrtod("0." + std::string(random() % 400, '0') + number + "e" + std::to_string(exponent));
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST(NumberPrefix, RandomHexadecimalNumbersAreReadAsByStrtod)
{
    constexpr std::string_view kDigits = "000fF88123456789aBcD";
    std::mt19937_64 random(3);
    for (int round = 0; round < 100'000; ++round) {
        const std::size_t longest = round % 20 == 0 ? 300 : 16;
        const int exponent = static_cast<int>(random() % 2400) - 1200;
        const std::string number =
            "0x" + RandomText(random, kDigits, longest) + "." + RandomText(random, kDigits, longest);
        ExpectAsStrtod(number);
        ExpectAsStrtod("-" + number + "P" + std::to_string(exponent));
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST(NumberPrefix, PrintedDoublesAreReadAsByStrtod)
{
    std::mt19937_64 random(4);
    for (int round = 0; round < 100'000; ++round) {
        const double number = RandomDouble(random);
        ExpectAsStrtod(Printed("%.*g", static_cast<int>(random() % 25), number));
        ExpectAsStrtod(Printed("%a", number));
        ExpectAsStrtod(Printed("%.17g", std::ldexp(number, -2000)));  // mostly 0 and subnormal numbers
        ASSERT_FALSE(HasFatalFailure());
    }
}

// Half-way between two doubles, and a last digit up or down from there.
TEST(NumberPrefix, NumbersHalfWayBetweenTwoDoublesAreReadAsByStrtod)
{
    static_assert(std::numeric_limits<long double>::digits > std::numeric_limits<double>::digits);
    std::mt19937_64 random(5);
    for (int round = 0; round < 20'000; ++round) {
        const double number = bit_cast<double>(random() % bit_cast<std::uint64_t>(kLargest));
        const auto next = static_cast<long double>(std::nextafter(number, kInfinity));
        std::string text = Printed("%.1100Lf", (static_cast<long double>(number) + next) / 2);
        ExpectAsStrtod(text);
        text.back() = '1';
        ExpectAsStrtod(text);
        ASSERT_FALSE(HasFatalFailure());
    }
}

#endif

}  // namespace
}  // namespace satwecvt
