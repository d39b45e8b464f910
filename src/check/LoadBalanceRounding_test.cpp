// How far apart the sums may be: by six digits, and no more.

#include "check/LoadBalance_test.h"

#include <gtest/gtest.h>

#include <limits>

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
    input.nodes.Insert(6, {6, 6, 123456.6, 0, 3});
    input.nodes.Insert(7, {7, 7, 123461.0, 0, 3});
    model.nodes.push_back({6, 123457, 0, 3});
    model.nodes.push_back({7, 123461, 0, 3});
    T_SATWE_STIF_D story;
    story.beams.Insert(kBeam, Beam(103, 6, 7));
    input.stories.Insert(3, story);
    model.frameElements.push_back({103, 1, 1, 6, 7, 0});
    Record(2, kBeam, {10, 10, 0, 4.4}, kDead, 3);
    Line(SpreadLine({{{0, -10}, {1, -10}}}, 103));
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
    input.nodes.Insert(8, {8, 8, 1e-10, 0, 3});
    model.nodes.push_back({8, 1e-10, 0, 3});
    T_SATWE_STIF_D story;
    story.beams.Insert(kBeam, Beam(104, 1, 8));
    input.stories.Insert(3, story);
    model.frameElements.push_back({104, 1, 1, 1, 8, 0});
    Record(4, kBeam, {1.5e308, 0}, kDead, 3);
    Line(SpreadLine({{{0, 0}, {0, -1.5e308}, {1, -1.5e308}, {1, 0}}}, 104));
    const CBalanceRow row = Rows().at(0);
    ExpectSum(1, 1.5e298, row.read);
    ExpectSum(1, 1.5e298, row.model);
    EXPECT_TRUE(row.Holds());
}

class LoadBalanceFarOut : public LoadBalance {
protected:
    /// The row of a load on a beam of no length at a height, beside a concentrated one; all of the former is cut.
    CBalanceRow RowOfAPointBeamAt(double z)
    {
        input.nodes.Insert(9, {9, 9, 0, 0, z});
        model.nodes.push_back({9, 0, 0, z});
        T_SATWE_STIF_D story;
        story.beams.Insert(kBeam, Beam(105, 9, 9));
        input.stories.Insert(3, story);
        model.frameElements.push_back({105, 1, 1, 9, 9, 0});
        Record(2, kBeam, {10, 10, 0, 1}, kLive, 3);
        Told(EFinding::LoadCut, 10, kLive);
        Line(SpreadLine({{{1, -10}, {1, -10}}}, 105), kLive);
        Record(1, kBeam, {7, 0}, kLive, 3);
        Line(ForceLine(-7, 105), kLive);
        const std::vector<CBalanceRow> rows = Rows();
        EXPECT_EQ(1U, rows.size());
        return rows.at(0);
    }
};

TEST_F(LoadBalanceFarOut, LengthsAreComputedAsFarAsTheirSquaresGo)
{
    const CBalanceRow row = RowOfAPointBeamAt(1e150);
    EXPECT_EQ(0, row.notSummed);
    ExpectSum(2, 17, row.read);
    ExpectSum(0, 10, row.lost);
    EXPECT_TRUE(row.Holds());
}

TEST_F(LoadBalanceFarOut, LoadsThatNeedALengthHaveNoResultantFartherOut)
{
    const CBalanceRow row = RowOfAPointBeamAt(1.1e150);
    EXPECT_EQ(1, row.notSummed);
    ExpectSum(1, 7, row.read);
    EXPECT_EQ(0, row.off);
}

TEST_F(LoadBalanceFarOut, NothingIsOffAtTheEndOfTheRangeOfDoubles)
{
    const CBalanceRow row = RowOfAPointBeamAt(1e308);
    EXPECT_EQ(1, row.notSummed);
    EXPECT_EQ(0, row.off);
    EXPECT_TRUE(row.Holds());
}

}  // namespace
}  // namespace satwecvt
