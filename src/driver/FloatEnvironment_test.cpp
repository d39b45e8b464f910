#include "driver/FloatEnvironment.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

/// Computed while the program runs, by the rounding mode of that moment.
double Quotient(double a, double b)
{
    const volatile double dividend = a;
    const volatile double divisor = b;
    return dividend / divisor;
}

constexpr double kNearestThird = 0x1.5555555555555p-2;
constexpr double kNearestTwoThirds = 0x1.5555555555555p-1;
#ifdef __EMSCRIPTEN__
constexpr int kModes[] = {FE_TONEAREST};  // WebAssembly rounds in no other way, and raises no flags
#else
constexpr int kModes[] = {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO};
#endif

/// Every test leaves the environment as it was.
class FloatEnvironment : public testing::Test {
protected:
    FloatEnvironment() { std::fegetenv(&before); }
    ~FloatEnvironment() override { std::fesetenv(&before); }

private:
    std::fenv_t before{};
};

TEST_F(FloatEnvironment, TheRoundingModeInsideIsToNearest)
{
    for (const int mode : kModes) {
        ASSERT_EQ(0, std::fesetround(mode));
        const CFloatEnvironment environment;
        EXPECT_EQ(FE_TONEAREST, std::fegetround());
    }
}

TEST_F(FloatEnvironment, TheHostGetsItsRoundingModeBack)
{
    for (const int mode : kModes) {
        ASSERT_EQ(0, std::fesetround(mode));
        {
            const CFloatEnvironment environment;
        }
        EXPECT_EQ(mode, std::fegetround());
    }
}

TEST_F(FloatEnvironment, ArithmeticInsideRoundsToNearestWhateverTheHostDoes)
{
    for (const int mode : kModes) {
        ASSERT_EQ(0, std::fesetround(mode));
        const CFloatEnvironment environment;
        EXPECT_EQ(FE_TONEAREST, std::fegetround());
        EXPECT_EQ(kNearestThird, Quotient(1.0, 3.0));
        EXPECT_EQ(-kNearestThird, Quotient(-1.0, 3.0));
        EXPECT_EQ(kNearestTwoThirds, Quotient(2.0, 3.0));
        EXPECT_EQ(0x1.999999999999ap-4, Quotient(1.0, 10.0));
    }
}

#ifndef __EMSCRIPTEN__

TEST_F(FloatEnvironment, TheHostRoundsAsBefore)
{
    ASSERT_EQ(0, std::fesetround(FE_UPWARD));
    {
        const CFloatEnvironment environment;
    }
    EXPECT_LT(kNearestThird, Quotient(1.0, 3.0));
}

TEST_F(FloatEnvironment, TheHostGetsItsExceptionFlagsBack)
{
    std::feclearexcept(FE_ALL_EXCEPT);
    std::feraiseexcept(FE_OVERFLOW);
    {
        const CFloatEnvironment environment;
        EXPECT_EQ(0, std::fetestexcept(FE_ALL_EXCEPT));
        EXPECT_LT(1e308, Quotient(1.0, 0.0));
        EXPECT_NE(0, std::fetestexcept(FE_DIVBYZERO));
    }
    EXPECT_NE(0, std::fetestexcept(FE_OVERFLOW));
    EXPECT_EQ(0, std::fetestexcept(FE_DIVBYZERO));
}

#endif

#ifdef __GLIBC__

TEST_F(FloatEnvironment, WhatTheHostTrapsIsNotTrappedInside)
{
    ASSERT_NE(-1, ::feenableexcept(FE_DIVBYZERO | FE_INVALID));
    {
        const CFloatEnvironment environment;
        EXPECT_EQ(0, ::fegetexcept());
        EXPECT_LT(1e308, Quotient(1.0, 0.0));
    }
    EXPECT_EQ(FE_DIVBYZERO | FE_INVALID, ::fegetexcept());
}

#endif

}  // namespace
}  // namespace satwecvt
