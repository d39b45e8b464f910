// What findings take away, and what is off without one.

#include "check/LoadBalance_test.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace satwecvt {
namespace {

TEST_F(LoadBalance, OfALoadThatIsCut)
{
    Record(2, kBeam, {10, 10, 1, 6});
    Told(EFinding::LoadBeforeStart);
    Told(EFinding::LoadCut, 20);
    Line(SpreadLine({{{0.25, -10}, {1, -10}}}));
    const CBalanceRow row = Row();
    ExpectSum(1, 50, row.read);
    ExpectSum(0, 20, row.lost);
    ExpectSum(1, 30, row.model);
    EXPECT_TRUE(row.Holds());
    findings.clear();
    EXPECT_FALSE(Row().Holds());
}

TEST_F(LoadBalance, OfALoadThatIsMoved)
{
    Record(1, kBeam, {10, 7});
    Told(EFinding::LoadMoved, 7);
    Line(ForceLine(-10));
    ExpectSum(0, 0, Row().lost);
    EXPECT_TRUE(Row().Holds());
}

TEST_F(LoadBalance, OfATrapezoidThatBecomesATriangle)
{
    Record(4, kBeam, {10, 1.998});
    Told(EFinding::TrapezoidAsTriangle, 0.02);
    Line(SpreadLine({{{0, 0}, {0.5, -10}, {1, 0}}}));
    const CBalanceRow row = Row();
    ExpectSum(1, 20.02, row.read);
    ExpectSum(0, 0.02, row.lost);
    ExpectSum(1, 20, row.model);
    EXPECT_TRUE(row.Holds());
    findings.clear();
    EXPECT_FALSE(Row().Holds());
}

TEST_F(LoadBalance, OfATrapezoidWithTwoReadings)
{
    Record(4, kBeam, {10, 3});
    Told(EFinding::TrapezoidAsTriangle, kNan);
    Line(SpreadLine({{{0, 0}, {0.5, -10}, {1, 0}}}));
    const CBalanceRow row = Row();
    ExpectSum(0, 0, row.read);
    ExpectSum(0, 0, row.lost);
    ExpectSum(1, 20, row.model);
    EXPECT_EQ(1, row.notSummed);
    EXPECT_TRUE(row.Holds());
}

TEST_F(LoadBalance, OfLoadsThatAreLeftOut)
{
    Record(1, 77, {10, 2});
    Told(EFinding::LoadBeamMissing);
    Record(4, kBeam, {4e-6, 1});
    Told(EFinding::ZeroLoad);
    Record(21, kWall, {7, 1});
    Told(EFinding::LoadNodeMissing, 99);
    const CBalanceRow row = Row();
    ExpectSum(3, 17.000012, row.read);
    ExpectSum(3, 17.000012, row.lost);
    ExpectSum(0, 0, row.model);
    EXPECT_TRUE(row.Holds());
}

TEST_F(LoadBalance, ALoadOnAMissingNodeIsCarried)
{
    Record(11, 99, {10});
    Told(EFinding::LoadNodeMissing, 99);
    for (CFinding& finding : findings) {
        finding.severity = ESeverity::Doubt;
    }
    Line({99, 0, 0, -10, 0, 0, 0});
    ExpectSum(0, 0, Row().lost);
    EXPECT_TRUE(Row().Holds());
}

TEST_F(LoadBalance, ALineOnAnElementThatIsNotThereCarriesNothing)
{
    model.planarElements.clear();
    Record(22, kWall, {9});
    Told(EFinding::LoadOnLostWall);
    Line(CEdgeLoad{201, 3, -9});
    const CBalanceRow row = Row();
    ExpectSum(1, 36, row.read);
    ExpectSum(1, 36, row.lost);
    ExpectSum(1, 0, row.model);
    EXPECT_TRUE(row.Holds());
}

TEST_F(LoadBalance, OfLoadsThatHaveNoResultant)
{
    Record(31, kBeam, {10});
    Told(EFinding::LoadType, 31);
    Record(22, 77, {10});
    Told(EFinding::LoadWallMissing);
    Record(2, kBeam, {5, 5, 3, 1});
    Line(SpreadLine({{{0.75, -5}, {0.25, -5}}}));
    Record(1, kBeam, {kInfinity, 1});
    Line(ForceLine(-kInfinity));
    Record(1, kBeam, {10, 1});
    Line(ForceLine(-10));
    const CBalanceRow row = Row();
    ExpectSum(1, 10, row.read);
    ExpectSum(0, 0, row.lost);
    ExpectSum(3, 10 - 10, row.model);  // from 3 back to 1 is -2 of 5
    EXPECT_EQ(4, row.notSummed);
    EXPECT_TRUE(row.Holds());
}

TEST_F(LoadBalance, ALineThatIsMissingIsOffHoweverSmallItIs)
{
    Record(1, kBeam, {1e9, 1});
    Line(ForceLine(-1e9));
    Record(1, kPointBeam, {1, 0});
    Record(31, kBeam, {});
    Told(EFinding::LoadType, 31);
    const CBalanceRow row = Row();
    EXPECT_LE(row.read.fz - row.model.fz, row.roundingBound.fz);
    EXPECT_EQ(1, row.off);
    EXPECT_FALSE(row.Holds());
}

TEST_F(LoadBalance, RecordsOfOneLineAreNotToldApart)
{
    Record(31, kBeam, {10});
    Told(EFinding::LoadType, 31);
    --line;
    Record(11, 4, {10});
    Line({4, 0, 0, -10, 0, 0, 0});
    EXPECT_EQ(2, Row().notSummed);
    ExpectSum(1, 10, Row().model);
    EXPECT_TRUE(Row().Holds());
}

TEST_F(LoadBalance, FindingsMayBeInAnyOrder)
{
    Record(1, 77, {1, 2});
    Told(EFinding::LoadBeamMissing, 0, kLive);
    Record(1, 77, {2, 2});
    Told(EFinding::LoadBeamMissing);
    std::swap(findings.front(), findings.back());
    ExpectSum(2, 3, Row().lost);
    EXPECT_TRUE(Row().Holds());
}

}  // namespace
}  // namespace satwecvt
