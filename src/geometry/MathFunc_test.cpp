#include "geometry/MathFunc.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace satwecvt {
namespace {

using CVector = std::array<double, 3>;

double Angle(const CVector& a, const CVector& b)
{
    return CMathFunc::AngleDeg(a.data(), b.data());
}

TEST(MathFunc, ConstantsAreComputedNotRounded)
{
    EXPECT_EQ(4.0 * std::atan(1.0), PI);
    EXPECT_EQ(180.0 / PI, RAD2DEG);
    EXPECT_EQ(PI / 180.0, DEG2RAD);
    EXPECT_EQ(1e-15, EPS_LEN);
}

TEST(MathFunc, DistanceOfAPointToItselfIsExactly0)
{
    EXPECT_EQ(0.0, CMathFunc::Distance(0.1, -2.7, 1e9, 0.1, -2.7, 1e9));
}

TEST(MathFunc, DistanceDoesNotDependOnTheOrderOfThePoints)
{
    EXPECT_EQ(13.0, CMathFunc::Distance(1.0, 2.0, 3.0, 4.0, 6.0, 15.0));
    EXPECT_EQ(13.0, CMathFunc::Distance(4.0, 6.0, 15.0, 1.0, 2.0, 3.0));
    EXPECT_EQ(CMathFunc::Distance(0.1, 0.2, 0.3, 7.7, 8.8, 9.9), CMathFunc::Distance(7.7, 8.8, 9.9, 0.1, 0.2, 0.3));
}

// Summed in any other order, these squares give the next double.
TEST(MathFunc, DistanceSumsTheSquaresOfYAndXBeforeThatOfZ)
{
    EXPECT_EQ(0x1.5a2e8fb8c2ec9p+3, CMathFunc::Distance(-4.41, 8.33, 5.31, 0.0, 0.0, 0.0));
}

CVector Unit(const CVector& v)
{
    CVector u{};
    EXPECT_EQ(1, CMathFunc::Normalize(v.data(), u.data()));
    return u;
}

// y and x before z: with the sum of x and z first the product is 1, and the angle 0.
TEST(MathFunc, AngleSumsTheProductsOfYAndXBeforeThatOfZ)
{
    EXPECT_LT(0.0, Angle(Unit({4, 9, 3}), Unit({8, 18, 6})));
}

// x and y before z: with the sum of y and z first the two unit vectors differ.
TEST(MathFunc, NormalizeSumsTheSquaresOfXAndYBeforeThatOfZ)
{
    EXPECT_EQ(0.0, Angle(Unit({8.1, 3.9, 5.4}), Unit({8.1 * 3, 3.9 * 3, 5.4 * 3})));
}

TEST(MathFunc, AngleOfEqualUnitVectorsIs0)
{
    EXPECT_EQ(0.0, Angle({1, 0, 0}, {1, 0, 0}));
    EXPECT_EQ(0.0, Angle({0, 0, -1}, {0, 0, -1}));
}

TEST(MathFunc, AngleOfOppositeUnitVectorsIs180)
{
    EXPECT_EQ(std::acos(-1.0) * RAD2DEG, Angle({0, 1, 0}, {0, -1, 0}));
    EXPECT_DOUBLE_EQ(180.0, Angle({0, 1, 0}, {0, -1, 0}));
}

TEST(MathFunc, AngleOfPerpendicularUnitVectorsIs90)
{
    EXPECT_DOUBLE_EQ(90.0, Angle({1, 0, 0}, {0, 1, 0}));
    EXPECT_DOUBLE_EQ(90.0, Angle({0, 0, 1}, {0, 1, 0}));
}

TEST(MathFunc, AngleOfAProductBeyond1IsThatOf1)
{
    EXPECT_EQ(0.0, Angle({1.0000000001, 0, 0}, {1, 0, 0}));
    EXPECT_DOUBLE_EQ(180.0, Angle({-1.0000000001, 0, 0}, {1, 0, 0}));
}

TEST(MathFunc, AngleDoesNotDivideByTheLengths)
{
    EXPECT_EQ(0.0, Angle({3, 3, 0}, {3, 0, 0}));
    EXPECT_DOUBLE_EQ(60.0, Angle({0.5, 0, 0}, {1, 0, 0}));
}

TEST(MathFunc, AngleOfANanStaysANan)
{
    EXPECT_TRUE(std::isnan(Angle({std::numeric_limits<double>::quiet_NaN(), 0, 0}, {1, 0, 0})));
}

TEST(MathFunc, NormalizeDividesEachComponentByTheLength)
{
    const CVector v{3, 0, 4};
    CVector u{7, 7, 7};
    EXPECT_EQ(1, CMathFunc::Normalize(v.data(), u.data()));
    EXPECT_EQ((CVector{0.6, 0, 0.8}), u);  // 3 times the reciprocal of 5 would be 0.6000000000000001
}

TEST(MathFunc, NormalizeLeavesTheResultUntouchedForAVectorThatIsTooShort)
{
    for (const CVector& v : {CVector{0, 0, 0}, CVector{1e-16, 0, 0}, CVector{0, -9.99e-16, 0}}) {
        CVector u{7, 8, 9};
        EXPECT_EQ(0, CMathFunc::Normalize(v.data(), u.data()));
        EXPECT_EQ((CVector{7, 8, 9}), u);
    }
}

TEST(MathFunc, NormalizeTakesTheShortestAcceptedLength)
{
    const CVector v{0, 0, -1e-15};
    CVector u{7, 7, 7};
    EXPECT_EQ(1, CMathFunc::Normalize(v.data(), u.data()));
    EXPECT_EQ((CVector{0, 0, -1}), u);
}

TEST(MathFunc, NormalizeMayWriteOverItsOwnVector)
{
    CVector v{0, 3, 4};
    EXPECT_EQ(1, CMathFunc::Normalize(v.data(), v.data()));
    EXPECT_EQ((CVector{0, 0.6, 0.8}), v);
}

}  // namespace
}  // namespace satwecvt
