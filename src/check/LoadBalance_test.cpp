// What is summed up, and for which story.

#include "check/LoadBalance_test.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

TEST_F(LoadBalance, WithoutLoadsHasNoRows)
{
    EXPECT_TRUE(Rows().empty());
    model.loadCases.clear();
    EXPECT_TRUE(Rows().empty());
}

struct CBeamCase {
    std::int32_t type;
    std::array<double, 4> value;
    CBeamLoad line;
    double fz;
};

TEST_F(LoadBalance, OfBeamLoads)
{
    const CBeamCase cases[] = {
        {1, {10, 2}, ForceLine(-10), 10},
        {2, {6, 8, 1, 4}, SpreadLine({{{0.25, -6}, {1, -8}}}), 21},
        {3, {8, 1, 1.5}, SpreadLine({{{0.25, 0}, {0.625, -8}, {1, 0}}}), 12},
        {4, {12, 1}, SpreadLine({{{0, 0}, {0.25, -12}, {0.75, -12}, {1, 0}}}), 36},
        {4, {12, 2}, SpreadLine({{{0, 0}, {0.5, -12}, {1, 0}}}), 24},
        {2, {6, 0, 0, 4}, SpreadLine({{{0, -6}, {1, -0.0}}}), 12},
    };
    double sum = 0.0;
    for (const CBeamCase& one : cases) {
        Record(one.type, kBeam, one.value);
        Line(one.line);
        sum += one.fz;
        const CBalanceRow row = Row();
        ExpectSum(line, sum, row.read);
        ExpectSum(line, sum, row.model);
        ExpectSum(0, 0, row.lost);
        EXPECT_EQ(0, row.notSummed);
        EXPECT_TRUE(row.Holds()) << line;
    }
}

TEST_F(LoadBalance, OfLoadsOnNodesAndWalls)
{
    Record(11, 4, {10, 5, 6});
    Line({4, 0, 0, -10, 5, 6, 0});
    Record(12, 4, {20, 7, -8});
    Line({4, 7, -8, -20, 0, 0, 0});
    Record(21, kWall, {12, 1});
    Line({1, 0, 0, -9, 0, 0, 0});
    Line({2, 0, 0, -3, 0, 0, 0});
    Record(22, kWall, {9});
    Line(CEdgeLoad{201, 3, -9});
    const CBalanceRow row = Row();
    ExpectSum(4, 10 + 20 + 12 + 36, row.read);
    ExpectSum(5, 78, row.model);
    EXPECT_EQ(7.0, row.read.fx);
    EXPECT_EQ(7.0, row.model.fx);
    EXPECT_EQ(-8.0, row.read.fy);
    EXPECT_EQ(-8.0, row.model.fy);
    EXPECT_TRUE(row.Holds());
}

TEST_F(LoadBalance, LiveRowsAreLiveLoadLessDeadLoad)
{
    Record(1, kBeam, {10, 2}, kLive);
    Line(ForceLine(-10), kLive);
    Record(1, kBeam, {30, 2}, kDead);
    Line(ForceLine(-30), kDead);
    const std::vector<CBalanceRow> rows = Rows();
    ASSERT_EQ(2U, rows.size());
    EXPECT_EQ(0, rows[0].loadCase);
    ExpectSum(1, 30, rows[0].model);
    EXPECT_EQ(1, rows[1].loadCase);
    ExpectSum(1, 10, rows[1].read);
    ExpectSum(1, 10, rows[1].model);
    EXPECT_TRUE(rows[0].Holds() && rows[1].Holds());
}

TEST_F(LoadBalance, WhatLiveLoadHasMoreOfADeadLoadIsOff)
{
    Record(1, kBeam, {30, 2});
    model.loadCases[0].beamLoads = {ForceLine(-30)};
    model.loadCases[1].beamLoads = {ForceLine(-31)};
    const std::vector<CBalanceRow> rows = Rows();
    ASSERT_EQ(2U, rows.size());
    EXPECT_TRUE(rows[0].Holds());
    EXPECT_DOUBLE_EQ(1.0, rows[1].model.fz);
    EXPECT_EQ(1, rows[1].off);
    EXPECT_FALSE(rows[1].Holds());
}

TEST_F(LoadBalance, ALineThatNobodyMadeBelongsToNoStory)
{
    Line(ForceLine(0, 102));
    Record(1, kBeam, {10, 1});
    Line(ForceLine(-10));
    Line(CEdgeLoad{201, 3, -9});
    const std::vector<CBalanceRow> rows = Rows();
    ASSERT_EQ(3U, rows.size());
    EXPECT_TRUE(rows[0].Holds());
    EXPECT_EQ(std::nullopt, rows[1].story);
    ExpectSum(2, 36, rows[1].model);
    EXPECT_EQ(2, rows[1].off);
    EXPECT_FALSE(rows[1].Holds());
    EXPECT_FALSE(rows[2].Holds());
}

TEST_F(LoadBalance, ALineOnAnotherElementIsOff)
{
    Record(1, kBeam, {10, 1});
    Line(ForceLine(-10, 102));
    EXPECT_EQ(1, Rows()[0].off);
    EXPECT_FALSE(Rows()[0].Holds());
}

TEST_F(LoadBalance, LoadsOnOneNodeBelongToTheirBlocks)
{
    Record(11, 4, {10}, kDead, 1);
    Line({4, 0, 0, -10, 0, 0, 0});
    Record(11, 4, {20}, kDead, 2);
    Line({4, 0, 0, -20, 0, 0, 0});
    Record(12, 4, {30, 1, 2}, kLive, 3);
    Line({4, 1, 2, -30, 0, 0, 0}, kLive);
    const std::vector<CBalanceRow> rows = Rows();
    ASSERT_EQ(3U, rows.size());
    EXPECT_EQ(1, rows[0].story);
    ExpectSum(1, 10, rows[0].model);
    EXPECT_EQ(2, rows[1].story);
    ExpectSum(1, 20, rows[1].model);
    EXPECT_EQ(std::nullopt, rows[2].story);
    EXPECT_EQ(1, rows[2].loadCase);
    ExpectSum(1, 30, rows[2].read);
    ExpectSum(1, 30, rows[2].model);
    EXPECT_TRUE(rows[0].Holds() && rows[1].Holds() && rows[2].Holds());
}

TEST_F(LoadBalance, OfABeamWithoutLength)
{
    Record(1, kPointBeam, {10, 0});
    Line(CBeamLoad{102, EBeamLoad::Concentrated, {{{kNan, -10}}}});
    Record(2, kPointBeam, {5, 5, 0, 3});
    Told(EFinding::LoadCut, 15);
    Line(SpreadLine({{{kNan, -5}, {1, -5}}}, 102));
    const CBalanceRow row = Row();
    ExpectSum(2, 25, row.read);
    ExpectSum(0, 15, row.lost);
    ExpectSum(2, 10, row.model);
    EXPECT_TRUE(row.Holds());
}

TEST_F(LoadBalance, OfTwoElementsWithOneNumberTheOneBetweenTheNodesIsMeant)
{
    AddNode(5, 6, 3);
    model.frameElements.push_back({101, 1, 1, 1, 5, 0});
    T_SATWE_STIF_D story;
    story.beams.Insert(kBeam, Beam(101, 1, 5));
    input.stories.Insert(3, story);
    Record(2, kBeam, {10, 10, 0, 4}, kDead, 2);
    Line(SpreadLine({{{0, -10}, {1, -10}}}));
    Record(2, kBeam, {10, 10, 0, 6}, kDead, 3);
    Line(SpreadLine({{{0, -10}, {1, -10}}}));
    const std::vector<CBalanceRow> rows = Rows();
    ASSERT_EQ(2U, rows.size());
    ExpectSum(1, 40, rows[0].model);
    ExpectSum(1, 60, rows[1].model);
    EXPECT_TRUE(rows[0].Holds() && rows[1].Holds());
}

}  // namespace
}  // namespace satwecvt
