// How far apart the sums may be: by six digits, and no more.

#include "check/LoadBalance_test.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace satwecvt {
namespace {

TEST_F(LoadBalance, TheRoundingOfSixDigitsIsAllowedAndNoMore)
{
    Record(1, kBeam, {123456.4, 1});
    Line(ForceLine(-123456));
    EXPECT_TRUE(Row().Holds());
    EXPECT_NEAR(0.5, Row().roundingBound.fz, 1e-9);
    model.loadCases[0].beamLoads = {ForceLine(-123455)};
    model.loadCases[1].beamLoads = {ForceLine(-123455)};
    EXPECT_FALSE(Row().Holds());
}

TEST_F(LoadBalance, CoordinatesOfSixDigitsAreAllowedFor)
{
    // The beam is 4.4 long and written 4 long.
    AddBeam({123456.6, 123461.0}, {123457, 123461});
    Record(2, kBeam, {10, 10, 0, 4.4}, kDead, 3);
    Line(SpreadLine({{{0, -10}, {1, -10}}}, 104));
    const CBalanceRow row = Rows().at(0);
    EXPECT_NEAR(44, row.read.fz, 1e-9);
    EXPECT_NEAR(40, row.model.fz, 1e-9);
    EXPECT_NEAR(10, row.roundingBound.fz, 0.001);  // each coordinate half, times 10
    EXPECT_TRUE(row.Holds());
}

TEST_F(LoadBalance, OfHugeAndTinyForces)
{
    Record(11, 4, {1e300});
    Line({4, 0, 0, -1e300, 0, 0, 0});
    Record(11, 4, {-1e300});
    Line({4, 0, 0, 1e300, 0, 0, 0});
    Record(12, 4, {4e-324, 1e-320, 0});
    Line({4, 9.99989e-321, 0, -4.94066e-324, 0, 0, 0});
    EXPECT_TRUE(Row().Holds());
    EXPECT_EQ(0, Row().notSummed);
    Record(11, 4, {1.7e308});
    Line({4, 0, 0, -1.7e308, 0, 0, 0});
    EXPECT_EQ(1, Row().notSummed);
    ExpectSum(4, 4e-324, Row().model);
}

TEST_F(LoadBalance, OfAHugeIntensityOnATinyBeam)
{
    AddBeam({0, 1e-10}, {0, 1e-10});
    Record(4, kBeam, {1.5e308, 0}, kDead, 3);
    Line(SpreadLine({{{0, 0}, {0, -1.5e308}, {1, -1.5e308}, {1, 0}}}, 104));
    const CBalanceRow row = Rows().at(0);
    ExpectSum(1, 1.5e298, row.read);
    ExpectSum(1, 1.5e298, row.model);
    EXPECT_TRUE(row.Holds());
}

class LoadBalanceAtTheLimits : public LoadBalance {
protected:
    /// A live record on the beam of story 3, and its line.
    void OnBeam(const std::array<double, 4>& value, const std::array<CPlacedValue, 4>& pairs)
    {
        Record(2, kBeam, value, kLive, 3);
        Line(SpreadLine(pairs, 104), kLive);
    }

    /// The row of story 3, to which a force of 7 comes as well.
    CBalanceRow LiveRow()
    {
        Record(1, kBeam, {7, 0}, kLive, 3);
        Line(ForceLine(-7, 104), kLive);
        const std::vector<CBalanceRow> rows = Rows();
        EXPECT_EQ(1U, rows.size());
        return rows.at(0);
    }

    /// The row with a load on a beam of no length at a height, all of which is cut.
    CBalanceRow RowOfAPointBeamAt(double z)
    {
        AddBeam({0, 0}, {0, 0}, z);
        OnBeam({10, 10, 1, 2}, {{{1, -10}, {1, -10}}});
        Told(EFinding::LoadCut, 10, kLive);
        return LiveRow();
    }

    /// Only the force of 7 is summed, and the sums are told apart from others.
    static void ExpectNotSummed(std::int64_t count, const CBalanceRow& row)
    {
        EXPECT_EQ(count, row.notSummed);
        EXPECT_EQ(0, row.off);
        ExpectSum(1, 7, row.read);
        ExpectSum(0, 0, row.lost);
        EXPECT_TRUE(std::isfinite(row.model.fz));
        EXPECT_TRUE(std::isfinite(row.roundingBound.fz));
    }
};

TEST_F(LoadBalanceAtTheLimits, LengthsAreComputedUpTo1e150)
{
    const CBalanceRow row = RowOfAPointBeamAt(1e150);
    EXPECT_EQ(0, row.notSummed);
    ExpectSum(2, 17, row.read);
    ExpectSum(0, 10, row.lost);
    EXPECT_TRUE(row.Holds());
}

TEST_F(LoadBalanceAtTheLimits, LoadsThatNeedALengthHaveNoResultantFartherOut)
{
    ExpectNotSummed(1, RowOfAPointBeamAt(1.1e150));
}

TEST_F(LoadBalanceAtTheLimits, NothingIsOffAtTheEndOfTheRangeOfDoubles)
{
    ExpectNotSummed(1, RowOfAPointBeamAt(1e308));
}

TEST_F(LoadBalanceAtTheLimits, APlaceMayBeTooSmallForItsFraction)
{
    AddBeam({0, 1e30}, {0, 1e30});
    OnBeam({1e300, 1e300, 0, 1e-300}, {{{0, -1e300}, {0, -1e300}}});
    OnBeam({1e300, 0, 0, 1e-300}, {{{0, -1e300}, {0, -0.0}}});
    const CBalanceRow row = LiveRow();
    ExpectSum(3, 8.5, row.read);
    EXPECT_EQ(0, row.off);
    EXPECT_TRUE(row.Holds());
}

TEST_F(LoadBalanceAtTheLimits, ALengthMayBeOneThatOnlyThePrintedPlacesHave)
{
    // The square of 1.571726e-162 is 0, that of 1.57173e-162 is the least double.
    AddBeam({0, 1.571726e-162}, {0, 1.57173e-162});
    OnBeam({10, 10, 0, 1}, {{{kNan, -10}, {1, -10}}});
    Told(EFinding::LoadCut, 10, kLive);
    const CBalanceRow row = LiveRow();
    ExpectSum(2, 17, row.read);
    EXPECT_EQ(0, row.off);
    EXPECT_TRUE(row.Holds());
}

TEST_F(LoadBalanceAtTheLimits, LinesThatAreInfiniteByThePrintedLengthAreNotSummed)
{
    // A length of 9e-10, and of 10 by six digits.
    AddBeam({1000004.9999999995, 1000005.0000000005}, {1000000, 1000010});
    OnBeam({1.5e308, 1.5e308, 0, 5e-10}, {{{0, -1.5e308}, {0.5, -1.5e308}}});
    OnBeam({-1.5e308, -1.5e308, 0, 5e-10}, {{{0, 1.5e308}, {0.5, 1.5e308}}});
    ExpectNotSummed(2, LiveRow());
}

TEST_F(LoadBalanceAtTheLimits, WhatMayBeOffByAnythingIsNotSummed)
{
    AddBeam({0, 4}, {0, 4});
    OnBeam({1e-10, 1e-10, 1e308, 1.7e308}, {{{1, -1e-10}, {1, -1e-10}}});
    Told(EFinding::LoadCut, 7e297, kLive);
    ExpectNotSummed(1, LiveRow());
}

TEST_F(LoadBalanceAtTheLimits, ALineThatIsNoNumberIsOff)
{
    AddBeam({0, 4}, {0, 4});
    OnBeam({10, 10, 0, 1}, {{{kNan, -10}, {0.25, -10}}});
    EXPECT_EQ(1, LiveRow().off);
}

}  // namespace
}  // namespace satwecvt
