#include "check/RecordForce.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace satwecvt {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

struct CForceCase {
    std::int32_t type;
    std::array<double, 4> value;
    double fz;
};

std::optional<CBoundedForce> ForceOf(std::int32_t type, const std::array<double, 4>& value,
                                     std::optional<double> length)
{
    CLoadedObject object;
    if (length) {
        object.length = Exactly(*length);
    }
    return RecordForce({1, 5, static_cast<ELoadType>(type), 0, value, 1}, object);
}

void ExpectForces(std::span<const CForceCase> cases, std::optional<double> length)
{
    for (const CForceCase& one : cases) {
        const auto force = ForceOf(one.type, one.value, length);
        ASSERT_TRUE(force.has_value()) << one.type << ": " << one.value[0] << " " << one.value[1];
        EXPECT_DOUBLE_EQ(one.fz, force->z.value) << one.type << ": " << one.value[0] << " " << one.value[1];
        EXPECT_LE(force->z.bound, 1e-14 * std::abs(one.fz) + 1e-12);
    }
}

void ExpectNone(std::span<const CForceCase> cases, std::optional<double> length)
{
    for (const CForceCase& one : cases) {
        EXPECT_FALSE(ForceOf(one.type, one.value, length).has_value())
            << one.type << ": " << one.value[0] << " " << one.value[1];
    }
}

TEST(RecordForce, OfEveryType)
{
    constexpr CForceCase kCases[] = {
        {1, {10, 2}, 10},
        {1, {-10, 7}, -10},
        {1, {10, -3}, 10},
        {1, {10, kNan}, 10},
        {2, {6, 8, 1, 4}, 21},
        {2, {6, -6, 1, 4}, 0},
        {2, {6, 6, 0, 9}, 54},
        {2, {6, 6, 3, 3}, 0},
        {2, {6, 6, -2e-6, 1}, 6.000012},
        {3, {8, 1, 1.5}, 12},
        {3, {8, 4, 3}, 24},
        {4, {12, 1}, 48},
        {4, {12, 0}, 60},
        {4, {12, 2.5}, 30},
        {4, {12, 2.499}, 30.012},
        {4, {1e-6, 1}, 4e-6},
        {4, {12, 2.500004}, 29.999952},
        {11, {40, 5, 6}, 40},
        {21, {12, 1}, 12},
        {21, {12, 9}, 12},
        {21, {12, -9}, 12},
        {22, {9}, 45},
        {22, {-9}, -45},
    };
    ExpectForces(kCases, 5.0);
}

TEST(RecordForce, OfHorizontalForces)
{
    const auto force = ForceOf(12, {10, 2.5, -3.5}, std::nullopt);
    ASSERT_TRUE(force.has_value());
    EXPECT_EQ(2.5, force->x.value);
    EXPECT_EQ(-3.5, force->y.value);
    EXPECT_EQ(10.0, force->z.value);
    EXPECT_EQ(0.0, ForceOf(11, {10, 2.5, -3.5}, std::nullopt)->x.value);
}

TEST(RecordForce, OnWhatIsNotThereNeedsNoLength)
{
    constexpr CForceCase kCases[] = {{1, {10, 2}, 10}, {2, {6, 8, 1, 4}, 21}, {3, {8, 1, 1.5}, 12}, {21, {12, 1}, 12}};
    ExpectForces(kCases, std::nullopt);
    constexpr CForceCase kNone[] = {{4, {12, 1}, 0}, {22, {9}, 0}, {2, {6, 8, -1e-9, 4}, 0}};
    ExpectNone(kNone, std::nullopt);
}

TEST(RecordForce, IsNoneOfALoadInFrontOfItsStart)
{
    constexpr CForceCase kCases[] = {
        {2, {6, 8, -1, 4}, 0},   {2, {6, 8, 4, 1}, 0},  {2, {6, 8, -1e-5, 1}, 0},   {3, {8, -1, 2}, 0},
        {3, {8, 1, -2}, 0},      {2, {0, 0, 4, -9}, 0}, {3, {0, -kInfinity, 2}, 0}, {4, {12, -1}, 0},
        {2, {6, 8, kNan, 4}, 0}, {3, {8, 1, kNan}, 0},
    };
    ExpectNone(kCases, 5.0);
}

TEST(RecordForce, IsNoneOfALoadThatEndsWhereItsBeamBegins)
{
    constexpr CForceCase kCases[] = {{2, {6, 8, -1e-6, 0}, 0}, {3, {8, -2e-6, 1e-6}, 0}, {3, {8, -2e-6, 5e-7}, 0}};
    ExpectNone(kCases, 5.0);
    constexpr CForceCase kWithin[] = {{2, {6, 6, 0, 0}, 0}, {3, {8, -2e-6, 1.5e-6}, 1.2e-5}};
    ExpectForces(kWithin, 5.0);
}

TEST(RecordForce, IsNoneOfATrapezoidLongerThanItsBeam)
{
    constexpr CForceCase kCases[] = {{4, {12, 2.50001}, 0}, {4, {12, 5}, 0}, {4, {12, 1e300}, 0}, {4, {12, kNan}, 0}};
    ExpectNone(kCases, 5.0);
}

TEST(RecordForce, OfAnObjectWithoutLength)
{
    constexpr CForceCase kCases[] = {{1, {10, 2}, 10}, {2, {6, 8, 1, 4}, 21}, {3, {8, 1, 1.5}, 12}, {22, {9}, 0}};
    ExpectForces(kCases, 0.0);
    constexpr CForceCase kNone[] = {{4, {12, 0}, 0}, {4, {12, 1}, 0}, {21, {12, 1}, 0}, {21, {12, 0}, 0}};
    ExpectNone(kNone, 0.0);
}

TEST(RecordForce, OfAnObjectTooFarOutForALength)
{
    constexpr CForceCase kNone[] = {
        {2, {6, 8, 1, 4}, 0}, {3, {8, 1, 1}, 0}, {4, {12, 1}, 0}, {21, {12, 1}, 0}, {22, {9}, 0}};
    ExpectNone(kNone, kInfinity);
    ExpectNone(kNone, kNan);
    constexpr CForceCase kCases[] = {{1, {10, 2}, 10}};
    ExpectForces(kCases, kInfinity);
    ExpectForces(kCases, kNan);
}

TEST(RecordForce, IsNoneWhereItIsNotFinite)
{
    constexpr CForceCase kNone[] = {
        {1, {kInfinity, 1}, 0},
        {1, {kNan, 1}, 0},
        {1, {1.1e300, 1}, 0},
        {2, {1.7e308, 1.7e308, 0, 1}, 0},
        {2, {6, 6, 0, kInfinity}, 0},
        {3, {1e200, 1, 1e200}, 0},
        {11, {kNan}, 0},
        {12, {1, kInfinity, 0}, 0},
        {12, {1, 0, kNan}, 0},
        {21, {1e10, 1e300}, 0},
        {21, {kInfinity, 1}, 0},
        {22, {1e300}, 0},
    };
    ExpectNone(kNone, 5.0);
    constexpr CForceCase kCases[] = {{1, {1e300, 1}, 1e300}, {22, {4e-324}, 2e-323}, {1, {1e-320, 1}, 1e-320}};
    ExpectForces(kCases, 5.0);
}

TEST(RecordForce, IsNoneOfOtherTypes)
{
    for (const std::int32_t type : {0, 5, 10, 13, 20, 23, 31, 32, -1, 2147483647, -2147483647 - 1}) {
        EXPECT_FALSE(ForceOf(type, {10, 1}, 5.0).has_value()) << type;
    }
}

TEST(RecordForce, KnowsHowFarDoublesMayBeOff)
{
    // 1e16 + 1 cannot be told from 1e16.
    const auto force = ForceOf(2, {1, 1, 1, 1e16}, std::nullopt);
    ASSERT_TRUE(force.has_value());
    EXPECT_GE(force->z.bound, 1.0);
}

}  // namespace
}  // namespace satwecvt
