#include "check/BoundedForce.h"

#include <gtest/gtest.h>

#include <string>

namespace satwecvt {
namespace {

constexpr double kDoubles = 1e-15;  // of a size of 1, all that doubles may add here

TEST(Printed, IsHalfAUnitOfTheSixthDigitOff)
{
    const struct {
        double value;
        double half;
    } kNumbers[] = {
        {1.0, 5e-6},         {9.99999, 5e-6}, {10.0, 5e-5},         {-10.0, 5e-5},     {123456.0, 0.5},
        {999999.0, 0.5},     {1e6, 5.0},      {0.1, 5e-7},          {0.0999999, 5e-8}, {1e-5, 5e-11},
        {9.99999e-6, 5e-12}, {1e300, 5e294},  {1.79769e308, 5e302}, {1e-290, 5e-296},  {2.5e-5, 5e-11},
    };
    for (const auto& number : kNumbers) {
        const CBounded printed = Printed(number.value);
        EXPECT_EQ(number.value, printed.value);
        EXPECT_GE(printed.bound, number.half * (1.0 - 1e-9)) << number.value;
        EXPECT_LE(printed.bound, number.half * (1.0 + 1e-9)) << number.value;
    }
}

TEST(Printed, PowersOfTenAreTheirOwnOnEverySystem)
{
    for (int power = -290; power <= 300; ++power) {
        const double value = std::stod("1e" + std::to_string(power));
        const double half = std::stod("5e" + std::to_string(power - 6));
        EXPECT_NEAR(half, Printed(value).bound, half * 1e-9) << value;
    }
}

TEST(Printed, OfZeroIsExact)
{
    EXPECT_EQ(0.0, Printed(0.0).bound);
    EXPECT_EQ(0.0, Printed(-0.0).bound);
}

TEST(Printed, OfTheLeastNumbersHasABoundBelowThem)
{
    for (const double value : {4.94066e-324, 1e-323, 9.88131e-324, 1e-310}) {
        EXPECT_GT(Printed(value).bound, 0.0) << value;
        EXPECT_LE(Printed(value).bound, 1e-307) << value;
    }
}

TEST(Printed, OfWhatIsNoNumberHasNoBound)
{
    EXPECT_EQ(0.0, Printed(std::numeric_limits<double>::infinity()).bound);
    EXPECT_EQ(0.0, Printed(std::numeric_limits<double>::quiet_NaN()).bound);
}

TEST(Bounded, SumsAddTheirBounds)
{
    const CBounded sum = CBounded{3.0, 0.25} + CBounded{-1.0, 0.5};
    EXPECT_EQ(2.0, sum.value);
    EXPECT_NEAR(0.75, sum.bound, kDoubles);
    const CBounded difference = CBounded{3.0, 0.25} - CBounded{-1.0, 0.5};
    EXPECT_EQ(4.0, difference.value);
    EXPECT_NEAR(0.75, difference.bound, kDoubles);
}

TEST(Bounded, ProductsAreOffByWhatTheirFactorsAre)
{
    // 3.25 x 2.5 = 8.125 and 2.75 x 1.5 = 4.125 are the ends: 2.125 and 1.875 from 6.
    const CBounded product = CBounded{3.0, 0.25} * CBounded{2.0, 0.5};
    EXPECT_EQ(6.0, product.value);
    EXPECT_NEAR(2.125, product.bound, 8 * kDoubles);
    EXPECT_NEAR(2.125, (CBounded{-3.0, 0.25} * CBounded{2.0, 0.5}).bound, 8 * kDoubles);
}

TEST(Bounded, DoublesThatAreLostInASumAreInItsBound)
{
    // 1e16 + 1 is 1e16 in doubles.
    const CBounded sum = Exactly(1e16) + Exactly(1.0);
    EXPECT_EQ(1e16, sum.value);
    EXPECT_GE(sum.bound, 1.0);
}

TEST(Distance, IsOffAsFarAsItsEndsAre)
{
    const CPoint origin;
    const CPoint end{{3.0, 0.03}, {4.0, 0.04}, {0.0, 0.0}};
    EXPECT_EQ(5.0, Distance(origin, end).value);
    EXPECT_NEAR(0.05, Distance(origin, end).bound, 8 * kDoubles);
    EXPECT_NEAR(0.05, Distance(end, origin).bound, 8 * kDoubles);
}

TEST(Distance, OfTinyPlacesHasABoundAboveIt)
{
    const CPoint origin;
    const CPoint end{Exactly(1e-160), {}, {}};
    EXPECT_GE(Distance(origin, end).bound, 1e-160);
}

TEST(BoundedForce, IsFiniteAsLongAsSumsOfItAre)
{
    EXPECT_TRUE((CBoundedForce{{}, {}, {1e300, 0}}).IsFinite());
    EXPECT_FALSE((CBoundedForce{{}, {}, {1.1e300, 0}}).IsFinite());
    EXPECT_FALSE((CBoundedForce{{}, {-1.1e300, 0}, {}}).IsFinite());
    EXPECT_FALSE((CBoundedForce{{std::numeric_limits<double>::quiet_NaN(), 0}, {}, {}}).IsFinite());
    EXPECT_TRUE((CBoundedForce{{}, {}, {0, 1e300}}).IsFinite());
    EXPECT_FALSE((CBoundedForce{{}, {}, {0, 1.1e300}}).IsFinite());
    EXPECT_FALSE((CBoundedForce{{0, std::numeric_limits<double>::quiet_NaN()}, {}, {}}).IsFinite());
}

TEST(BoundedForce, IsUnboundedWhereABoundIsInfinite)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    EXPECT_TRUE((CBoundedForce{{}, {}, {1, kInfinity}}).IsUnbounded());
    EXPECT_TRUE((CBoundedForce{{}, {1, kInfinity}, {}}).IsUnbounded());
    EXPECT_TRUE((CBoundedForce{{1, kInfinity}, {}, {}}).IsUnbounded());
    EXPECT_FALSE((CBoundedForce{{}, {}, {kInfinity, 1.7e308}}).IsUnbounded());
    EXPECT_FALSE((CBoundedForce{{}, {}, {1, std::numeric_limits<double>::quiet_NaN()}}).IsUnbounded());
}

}  // namespace
}  // namespace satwecvt
