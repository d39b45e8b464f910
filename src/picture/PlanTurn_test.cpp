#include "picture/PlanTurn.h"

#include <gtest/gtest.h>

#include <cmath>

namespace satwecvt {
namespace {

TEST(PlanTurn, QuartersAreExact)
{
    for (const double turns : {0.0, 1.0, -1.0, 1000.0}) {
        const double start = 360.0 * turns;
        EXPECT_EQ(TurnBy(start).cosine, 1.0);
        EXPECT_EQ(TurnBy(start).sine, 0.0);
        EXPECT_EQ(TurnBy(start + 90.0).cosine, 0.0);
        EXPECT_EQ(TurnBy(start + 90.0).sine, 1.0);
        EXPECT_EQ(TurnBy(start + 180.0).cosine, -1.0);
        EXPECT_EQ(TurnBy(start + 180.0).sine, 0.0);
        EXPECT_EQ(TurnBy(start - 90.0).cosine, 0.0);
        EXPECT_EQ(TurnBy(start - 90.0).sine, -1.0);
    }
}

TEST(PlanTurn, IsCosineAndSine)
{
    for (int i = -1000; i <= 1000; ++i) {
        const double degrees = i * 0.41;
        const double radians = degrees * 3.14159265358979323846 / 180.0;
        EXPECT_NEAR(TurnBy(degrees).cosine, std::cos(radians), 1e-14) << degrees;
        EXPECT_NEAR(TurnBy(degrees).sine, std::sin(radians), 1e-14) << degrees;
    }
}

TEST(PlanTurn, TakesAnyNumber)
{
    for (const double degrees : {1e300, -1e300, 1e-300, 44.999999999999999, 45.0, -45.0, 135.0, 225.0, 315.0}) {
        const auto [cosine, sine] = TurnBy(degrees);
        EXPECT_NEAR(cosine * cosine + sine * sine, 1.0, 1e-14) << degrees;
    }
}

}  // namespace
}  // namespace satwecvt
