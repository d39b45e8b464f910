#include "model/Int32.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct CTruncation {
    double number;
    std::int32_t expected;
};

void ExpectTruncations(std::initializer_list<CTruncation> table)
{
    for (const CTruncation& row : table) {
        EXPECT_EQ(row.expected, TruncateToInt32(row.number)) << row.number;
    }
}

TEST(Int32, FractionsAreCutTowardZero)
{
    ExpectTruncations({{0.0, 0},
                       {-0.0, 0},
                       {0.999999, 0},
                       {-0.999999, 0},
                       {2.5, 2},
                       {-2.5, -2},
                       {1e-320, 0},
                       {2147483646.75, kMax - 1},
                       {-2147483647.75, kMin + 1}});
}

TEST(Int32, NumbersBeyond32BitsBecomeTheNearestLimit)
{
    ExpectTruncations({{2147483647.0, kMax},
                       {2147483647.5, kMax},
                       {2147483648.0, kMax},
                       {1e300, kMax},
                       {kInfinity, kMax},
                       {-2147483648.0, kMin},
                       {-2147483648.5, kMin},
                       {-2147483649.0, kMin},
                       {-1e300, kMin},
                       {-kInfinity, kMin}});
}

TEST(Int32, ANanBecomes0)
{
    EXPECT_EQ(0, TruncateToInt32(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(0, TruncateToInt32(-std::numeric_limits<double>::quiet_NaN()));
}

TEST(Int32, SumsWrapAt32Bits)
{
    EXPECT_EQ(5, WrappedSum(2, 3));
    EXPECT_EQ(-1, WrappedSum(2, -3));
    EXPECT_EQ(kMin, WrappedSum(kMax, 1));
    EXPECT_EQ(kMax, WrappedSum(kMin, -1));
    EXPECT_EQ(-2, WrappedSum(kMax, kMax));
    EXPECT_EQ(0, WrappedSum(kMin, kMin));
}

TEST(Int32, TheSmallestIntegerIsItsOwnAbsoluteValue)
{
    EXPECT_EQ(7, WrappedAbs(-7));
    EXPECT_EQ(7, WrappedAbs(7));
    EXPECT_EQ(0, WrappedAbs(0));
    EXPECT_EQ(kMax, WrappedAbs(kMin + 1));
    EXPECT_EQ(kMin, WrappedAbs(kMin));
}

}  // namespace
}  // namespace satwecvt
