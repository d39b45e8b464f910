#include "lines/NumberPrefix.h"

#include "lines/SameDouble_test.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

using namespace std::string_literals;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kSmallest = std::numeric_limits<double>::denorm_min();
constexpr double kSmallestNormal = std::numeric_limits<double>::min();

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

// A double has 53 bits, a register of the x87 unit 64. In units of the last of those 64 bits, the first number is
// 1024.34 above the double below it, the second 1023.94, where 1024 is the middle: rounded to 64 bits first, both
// would be in the middle, and go to the even double, the wrong one.
TEST(NumberPrefix, ANumberNearTheMiddleOfTwoDoublesIsRoundedOnce)
{
    ExpectValues({{"1261.1620272858E27", 0x1.fd6118e77f2e1p+99}, {"4579829182314628E21", 0x1.b905818e5f9f7p+121}});
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

}  // namespace
}  // namespace satwecvt
