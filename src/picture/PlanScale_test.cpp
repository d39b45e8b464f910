#include "picture/PlanScale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace satwecvt {
namespace {

/// A plan of this size in the middle of (500, 300).
CPlanScale ScaleOf(double width, double height)
{
    CPlanBox drawn;
    drawn.Add({500.0 - width / 2.0, 300.0 - height / 2.0});
    drawn.Add({500.0 + width / 2.0, 300.0 + height / 2.0});
    return {std::max(width, height), drawn};
}

std::string TextOf(const CPlanScale& scale)
{
    return "1:" + std::to_string(scale.Denominator()) + " " + std::string(scale.Paper().name);
}

// Room for the plan: A4 175 x 154, A3 298 x 241, A2 472 x 364, A1 719 x 538 mm.

TEST(PlanScale, TakesTheLargestScaleThatFitsOnA1)
{
    EXPECT_EQ(TextOf(ScaleOf(14380, 10760)), "1:20 A1");
    EXPECT_EQ(TextOf(ScaleOf(14381, 10000)), "1:50 A3");
    EXPECT_EQ(TextOf(ScaleOf(14000, 10761)), "1:50 A3");
    EXPECT_EQ(TextOf(ScaleOf(35950, 1000)), "1:50 A1");
    EXPECT_EQ(TextOf(ScaleOf(35951, 1000)), "1:100 A2");
    EXPECT_EQ(TextOf(ScaleOf(71901, 1000)), "1:200 A2");
    EXPECT_EQ(TextOf(ScaleOf(143801, 1000)), "1:500 A3");
    EXPECT_EQ(TextOf(ScaleOf(359501, 1000)), "1:1000 A2");
    EXPECT_EQ(TextOf(ScaleOf(719001, 1000)), "1:2000 A2");
    EXPECT_EQ(TextOf(ScaleOf(4e9, 4e9)), "1:10000000 A1");
}

TEST(PlanScale, TakesTheSmallestSheetAtThatScale)
{
    EXPECT_EQ(TextOf(ScaleOf(3500, 3080)), "1:20 A4");
    EXPECT_EQ(TextOf(ScaleOf(3501, 3080)), "1:20 A3");
    EXPECT_EQ(TextOf(ScaleOf(3500, 3081)), "1:20 A3");
    EXPECT_EQ(TextOf(ScaleOf(5961, 3081)), "1:20 A2");
    EXPECT_EQ(TextOf(ScaleOf(9441, 3081)), "1:20 A1");
}

TEST(PlanScale, ShortLengthsAreMetres)
{
    EXPECT_TRUE(ScaleOf(500, 20).IsInMetres());
    EXPECT_FALSE(ScaleOf(501, 20).IsInMetres());
    EXPECT_EQ(TextOf(ScaleOf(30, 20)), "1:50 A1");  // 600 by 400 mm
    EXPECT_TRUE(CPlanScale(0.0, {}).IsInMetres());
    EXPECT_EQ(TextOf(CPlanScale(0.0, {})), "1:20 A4");
}

TEST(PlanScale, ThePlanStandsInTheMiddleAndUpright)
{
    const CPlanScale scale = ScaleOf(14000, 10000);  // 40 to 759 and 20 to 558 on A1
    EXPECT_EQ(scale.ToPaper({500, 300}), (CPaperPoint{39950, 28900}));
    EXPECT_EQ(scale.ToPaper({2500, 4300}), (CPaperPoint{49950, 8900}));
    EXPECT_EQ(scale.ToPaper(250.0), 1250);
    EXPECT_EQ(scale.Field().low, (CPaperPoint{2000, 1000}));
    EXPECT_EQ(scale.Field().high, (CPaperPoint{76900, 58400}));
    EXPECT_EQ(BorderOf(scale.Paper()).high, (CPaperPoint{83100, 58400}));
}

}  // namespace
}  // namespace satwecvt
