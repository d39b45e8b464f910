#include "driver/FloatEnvironment.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>

#ifdef SATWECVT_HAS_SSE
#include <xmmintrin.h>
#endif

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
    const int enabled = ::feenableexcept(FE_DIVBYZERO | FE_INVALID);
#ifdef __aarch64__
    if (enabled == -1) {
        // ARM64 leaves it to the processor whether it can trap at all: where it cannot, a host cannot have a trap set.
        GTEST_SKIP() << "this processor traps nothing, as most of its kind";
    }
#endif
    ASSERT_NE(-1, enabled);
    {
        const CFloatEnvironment environment;
        EXPECT_EQ(0, ::fegetexcept());
        EXPECT_LT(1e308, Quotient(1.0, 0.0));
    }
    EXPECT_EQ(FE_DIVBYZERO | FE_INVALID, ::fegetexcept());
}

#endif

#if defined(SATWECVT_HAS_SSE) || defined(__aarch64__)

#ifdef SATWECVT_HAS_SSE

// Denormal numbers are 0 where they are read, and where they come out.
constexpr std::uint32_t kFlushToZero = 0x8040;

std::uint32_t Control()
{
    return _mm_getcsr();
}

void SetControl(std::uint32_t control)
{
    _mm_setcsr(control);
}

#else

constexpr std::uint64_t kFlushToZero = std::uint64_t{1} << 24U;
constexpr std::uint64_t kDefaultNan = std::uint64_t{1} << 25U;  // of every NaN, whichever it came from

std::uint64_t Control()
{
    std::uint64_t control = 0;
    __asm__ volatile("mrs %0, fpcr" : "=r"(control));
    return control;
}

void SetControl(std::uint64_t control)
{
    __asm__ volatile("msr fpcr, %0" : : "r"(control));
}

#endif

/// Every test leaves the control register as it was.
class ControlRegister : public testing::Test {
protected:
    ~ControlRegister() override { SetControl(before); }

private:
    const decltype(Control()) before = Control();
};

constexpr double kLeastNormal = std::numeric_limits<double>::min();

TEST_F(ControlRegister, OfAHostThatFlushesDenormalNumbersToZeroDoesNotCountInside)
{
    SetControl(Control() | kFlushToZero);
    EXPECT_EQ(0.0, Quotient(kLeastNormal, 2.0));
    {
        const CFloatEnvironment environment;
        EXPECT_EQ(0x1p-1023, Quotient(kLeastNormal, 2.0));
        EXPECT_EQ(kLeastNormal, Quotient(0x1p-1023, 0.5));
    }
    EXPECT_EQ(0.0, Quotient(kLeastNormal, 2.0));
}

#ifdef __aarch64__

TEST_F(ControlRegister, OfAHostThatKnowsOneNanOnlyDoesNotCountInside)
{
    constexpr std::uint64_t kNan = 0x7FF8'0000'0000'002A;  // quiet, with a payload of 42
    const double nan = std::bit_cast<double>(kNan);
    const auto halved = [&] { return std::bit_cast<std::uint64_t>(Quotient(nan, 2.0)); };
    SetControl(Control() | kDefaultNan);
    EXPECT_NE(kNan, halved());
    {
        const CFloatEnvironment environment;
        EXPECT_EQ(kNan, halved());
    }
    EXPECT_NE(kNan, halved());
}

TEST_F(ControlRegister, IsTheDefaultOneInside)
{
    SetControl(Control() | kFlushToZero | kDefaultNan);
    const CFloatEnvironment environment;
    EXPECT_EQ(0U, Control());
}

#endif
#endif

}  // namespace
}  // namespace satwecvt
