#include "text/NumberText.h"

#include "doubles/BitCast.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

namespace satwecvt {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

std::string IntegerText(std::int32_t number)
{
    std::array<char, kMostIntegerCharacters> text{};
    return {text.data(), WriteInteger(text.data(), number)};
}

std::string RealText(double number)
{
    std::array<char, kMostRealCharacters> text{};
    return {text.data(), WriteReal(text.data(), number)};
}

struct CExample {
    double number;
    const char* expected;
};

void ExpectTexts(std::initializer_list<CExample> table)
{
    for (const CExample& row : table) {
        EXPECT_EQ(row.expected, RealText(row.number));
    }
}

TEST(NumberText, Integers)
{
    EXPECT_EQ("0", IntegerText(0));
    EXPECT_EQ("42", IntegerText(42));
    EXPECT_EQ("-7", IntegerText(-7));
    EXPECT_EQ("2147483647", IntegerText(std::numeric_limits<std::int32_t>::max()));
    EXPECT_EQ("-2147483648", IntegerText(std::numeric_limits<std::int32_t>::min()));
}

TEST(NumberText, TrailingZerosAreDropped)
{
    ExpectTexts({{0.0, "0"}, {1500.0, "1500"}, {0.25, "0.25"}, {-2.5, "-2.5"}, {100000.0, "100000"}, {0.1, "0.1"}});
}

TEST(NumberText, SixSignificantDigitsStay)
{
    ExpectTexts({{3.14159265, "3.14159"},
                 {1234.5678, "1234.57"},
                 {123456.7, "123457"},
                 {0.000123456789, "0.000123457"},
                 {9.999994, "9.99999"},
                 {9.999996, "10"},
                 {99999.96, "100000"}});
}

TEST(NumberText, LargeAndSmallNumbersHaveAnExponent)
{
    ExpectTexts({{999999.0, "999999"},
                 {999999.4, "999999"},
                 {1000000.0, "1e+06"},
                 {1234567.0, "1.23457e+06"},
                 {-1e15, "-1e+15"},
                 {1e100, "1e+100"},
                 {0.0001, "0.0001"},
                 {0.00001, "1e-05"},
                 {1e-7, "1e-07"},
                 {0.0000999999, "9.99999e-05"},
                 {0.00009999999, "0.0001"}});
}

TEST(NumberText, ATieIsRoundedToTheEvenDigit)
{
    ExpectTexts({{999998.5, "999998"},
                 {999999.5, "1e+06"},
                 {123456.5, "123456"},
                 {123457.5, "123458"},
                 {1000005.0, "1e+06"},
                 {1000015.0, "1.00002e+06"},
                 {-1000025.0, "-1.00002e+06"},
                 {9.999995, "10"},         // no tie: the double is a little above
                 {0.1234565, "0.123456"},  // no tie: the double is a little below
                 {2.5e-6, "2.5e-06"}});
}

TEST(NumberText, TheLimitsOfADouble)
{
    ExpectTexts({{std::numeric_limits<double>::max(), "1.79769e+308"},
                 {-std::numeric_limits<double>::min(), "-2.22507e-308"},
                 {std::numeric_limits<double>::denorm_min(), "4.94066e-324"},
                 {-1.23456789e-308, "-1.23457e-308"}});
}

TEST(NumberText, ANegatedZeroKeepsItsSign)
{
    ExpectTexts({{-0.0, "-0"}});
}

TEST(NumberText, InfinityAndNanAreWords)
{
    ExpectTexts({{kInfinity, "inf"}, {-kInfinity, "-inf"}});
}

TEST(NumberText, ANanHasNoSign)
{
    ExpectTexts({{kNan, "nan"}, {-kNan, "nan"}, {std::numeric_limits<double>::signaling_NaN(), "nan"}});
}

// The printf of Windows writes exponents of three digits; there the tables above have to do.
#ifndef _WIN32

void ExpectAsPrintf(double number)
{
    std::array<char, 32> expected{};
    std::snprintf(expected.data(), expected.size(), "%g", number);
    ASSERT_STREQ(std::isnan(number) ? "nan" : expected.data(), RealText(number).c_str());
}

TEST(NumberText, RandomDoublesAreWrittenAsByPrintf)
{
    std::mt19937_64 random(1);
    for (int round = 0; round < 500'000; ++round) {
        ExpectAsPrintf(bit_cast<double>(random()));
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST(NumberText, RandomDoublesOfUsualSizesAreWrittenAsByPrintf)
{
    std::mt19937_64 random(4);
    for (int round = 0; round < 500'000; ++round) {
        const double mantissa = static_cast<double>((random() >> 11) | 1U);
        const int exponent = static_cast<int>(random() % 130) - 125;  // 1e-22 to 1e17
        ExpectAsPrintf(std::ldexp(mantissa, exponent));
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST(NumberText, RandomBinaryFractionsAreWrittenAsByPrintf)
{
    std::mt19937_64 random(5);
    for (int round = 0; round < 500'000; ++round) {
        ExpectAsPrintf(std::ldexp(static_cast<double>(random() % 10'000'000), -static_cast<int>(random() % 12)));
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST(NumberText, NeighboursOfPowersOfTenAreWrittenAsByPrintf)
{
    for (int power = -25; power <= 20; ++power) {
        for (const double factor : {0.9999994, 0.9999995, 0.99999950000001, 0.9999996, 1.0, 1.0000005}) {
            double number = std::pow(10.0, power) * factor;
            for (int step = 0; step < 5; ++step) {
                ExpectAsPrintf(number);
                number = std::nextafter(number, 1e300);
            }
        }
    }
}

TEST(NumberText, RandomShortDecimalsAreWrittenAsByPrintf)
{
    std::mt19937_64 random(2);
    for (int round = 0; round < 500'000; ++round) {
        const auto digits = static_cast<double>(random() % 100'000'000);
        const double power = std::pow(10.0, static_cast<double>(random() % 24));
        ExpectAsPrintf(random() % 2 == 0 ? digits / power : -digits * power);
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST(NumberText, RandomTiesAreWrittenAsByPrintf)
{
    std::mt19937_64 random(3);
    for (int round = 0; round < 100'000; ++round) {
        const auto sixDigits = static_cast<double>(100'000 + random() % 900'000);
        for (const double scale : {1.0, 10.0, 1000.0, 0.5, 0.125, 1e9}) {
            ExpectAsPrintf((sixDigits + 0.5) * scale);
        }
        ASSERT_FALSE(HasFatalFailure());
    }
}

#endif

}  // namespace
}  // namespace satwecvt
