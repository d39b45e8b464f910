#include "check/LoadBalance.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

constexpr std::int32_t kDead = 0;
constexpr std::int32_t kLive = 1;

constexpr std::int32_t kBeam = 8;       // element 101 from node 1 to node 2, 4 long
constexpr std::int32_t kPointBeam = 9;  // element 102, of no length
constexpr std::int32_t kWall = 3;       // element 201, whose first row is 4 long

CBeamLoad ForceLine(double force, std::int32_t element = 101)
{
    return {element, EBeamLoad::Concentrated, {{{0.5, force}}}};
}

CBeamLoad SpreadLine(const std::array<CPlacedValue, 4>& pairs, std::int32_t element = 101)
{
    return {element, EBeamLoad::Distributed, pairs};
}

/// A building of the stories 1 and 2, and its model; all members belong to story 2.
class LoadBalance : public testing::Test {
protected:
    LoadBalance()
    {
        AddNode(1, 0, 3);
        AddNode(2, 4, 3);
        AddNode(3, 0, 0);
        AddNode(4, 4, 0);
        T_SATWE_STIF_D story;
        story.key = 2;
        story.beams.Insert(kBeam, Beam(101, 1, -2));
        story.beams.Insert(kPointBeam, Beam(102, 2, 2));
        story.walls.Insert(kWall, {201, 2, {}, {1, 2}, {3, 4}, 40});
        input.stories.Insert(1, T_SATWE_STIF_D());
        input.stories.Insert(2, story);
        input.stories.SortByKey();
        model.frameElements = {{101, 1, 1, 1, 2, 0}, {102, 1, 1, 2, 2, 0}};
        model.planarElements = {{EPlanarElement::Wall, 201, 1, 1, {3, 4, 2, 1}}};
        model.loadCases.resize(2);
    }

    static T_SATWE_STBM_D Beam(std::int32_t seq, std::int32_t nodeI, std::int32_t nodeJ)
    {
        T_SATWE_STBM_D beam;
        beam.seq = seq;
        beam.nodeI = nodeI;
        beam.nodeJ = nodeJ;
        return beam;
    }

    void AddNode(std::int32_t number, double x, double z)
    {
        input.nodes.Insert(number, {number, number, x, 0, z});
        model.nodes.push_back({number, x, 0, z});
    }

    /// A record of a block, in the next line of the load file.
    void Record(std::int32_t type, std::int32_t member, const std::array<double, 4>& value,
                std::int32_t loadCase = kDead, std::int32_t block = 2)
    {
        input.loads.Add({block, member, static_cast<ELoadType>(type), loadCase, value, ++line});
    }

    /// A line of the model, under both cases where it is dead.
    void Line(const CNodalLoad& load, std::int32_t loadCase = kDead)
    {
        ForCases(loadCase, [&](CLoadCase& lines) { lines.nodalLoads.push_back(load); });
    }
    void Line(const CBeamLoad& load, std::int32_t loadCase = kDead)
    {
        ForCases(loadCase, [&](CLoadCase& lines) { lines.beamLoads.push_back(load); });
    }
    void Line(const CEdgeLoad& load, std::int32_t loadCase = kDead)
    {
        ForCases(loadCase, [&](CLoadCase& lines) { lines.edgeLoads.push_back(load); });
    }

    /// A finding about the record added last, told twice where it is dead.
    void Told(EFinding code, double value = 0.0, std::int32_t loadCase = kDead)
    {
        CFinding finding = MakeFinding(code, {ESource::LoadFile, line});
        finding.values[0] = value;
        findings.insert(findings.end(), loadCase == kDead ? 2 : 1, finding);
    }

    std::vector<CBalanceRow> Rows() const { return BalanceLoads(input, model, findings); }

    /// The only row, which is dead and belongs to story 2.
    CBalanceRow Row() const
    {
        const std::vector<CBalanceRow> rows = Rows();
        EXPECT_EQ(1U, rows.size());
        EXPECT_EQ(2, rows.at(0).story);
        EXPECT_EQ(0, rows.at(0).loadCase);
        return rows.at(0);
    }

    CSatweModel input;
    CModelFile model;
    std::vector<CFinding> findings;
    std::int32_t line = 0;

private:
    template <class AddLine>
    void ForCases(std::int32_t loadCase, AddLine addLine)
    {
        if (loadCase == kDead) {
            addLine(model.loadCases[0]);
        }
        addLine(model.loadCases[1]);
    }
};

void ExpectSum(std::int64_t count, double fz, const CForceSum& sum)
{
    EXPECT_EQ(count, sum.count);
    EXPECT_DOUBLE_EQ(fz, sum.fz);
}

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
