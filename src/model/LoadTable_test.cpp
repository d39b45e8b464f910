#include "model/LoadTable.h"

#include <gtest/gtest.h>

#include <vector>

namespace satwecvt {
namespace {

T_SATWE_STLD_D Load(std::int32_t storyId, std::int32_t member, ELoadType type, std::int32_t loadCase,
                    std::array<double, 4> value, std::int32_t line)
{
    return {storyId, member, type, loadCase, value, line};
}

std::vector<T_SATWE_STLD_D> AllOf(const CLoadTable& table)
{
    std::vector<T_SATWE_STLD_D> all;
    table.Visit([&](const T_SATWE_STLD_D& load) { all.push_back(load); });
    return all;
}

void ExpectSame(const T_SATWE_STLD_D& expected, const T_SATWE_STLD_D& actual)
{
    EXPECT_EQ(expected.storyId, actual.storyId);
    EXPECT_EQ(expected.memberId, actual.memberId);
    EXPECT_EQ(expected.loadType, actual.loadType);
    EXPECT_EQ(expected.loadCase, actual.loadCase);
    EXPECT_EQ(expected.value, actual.value);
    EXPECT_EQ(expected.line, actual.line);
}

TEST(LoadTable, GivesBackEveryLoadAsItWas)
{
    const T_SATWE_STLD_D loads[] = {
        Load(1, 12, ELoadType::BeamForce, 0, {45000, 1800}, 3),
        Load(1, -7, ELoadType::BeamLinear, 1, {1, 2, 3, 4}, 4),
        Load(1, 12, ELoadType{-2147483647 - 1}, 1, {}, 5),
        Load(3, 2147483647, ELoadType::WallLine, 0, {-0.5}, 8),
        Load(2, 8, ELoadType::NodeForceMoments, 1, {1, 2, 3}, 9),
        Load(2, 8, ELoadType::Unused31, 0, {}, 2147483647),
        Load(3, 8, ELoadType::BeamTriangle, 0, {7, 8, 9}, 11),
    };
    CLoadTable table;
    table.Reserve(2);  // more come than there was room made for
    for (const T_SATWE_STLD_D& load : loads) {
        table.Add(load);
    }
    ASSERT_EQ(std::size(loads), table.Count());
    const std::vector<T_SATWE_STLD_D> all = AllOf(table);
    ASSERT_EQ(std::size(loads), all.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        SCOPED_TRACE(i);
        ExpectSame(loads[i], all[i]);
    }
}

TEST(LoadTable, KeepsTheValuesThatTheTypeUses)
{
    CLoadTable table;
    table.Add(Load(1, 1, ELoadType::BeamForce, 0, {1, 2, 3, 4}, 1));
    table.Add(Load(1, 1, ELoadType{5}, 0, {1, 2, 3, 4}, 2));
    table.Add(Load(1, 1, ELoadType::WallLine, 0, {9, 2, 3, 4}, 3));
    const std::vector<T_SATWE_STLD_D> all = AllOf(table);
    EXPECT_EQ((std::array<double, 4>{1, 2, 0, 0}), all[0].value);
    EXPECT_EQ((std::array<double, 4>{0, 0, 0, 0}), all[1].value);
    EXPECT_EQ((std::array<double, 4>{9, 0, 0, 0}), all[2].value);
}

TEST(LoadTable, EveryCaseButZeroIsLive)
{
    CLoadTable table;
    for (const std::int32_t loadCase : {0, 1, 2, -1, 2147483647}) {
        table.Add(Load(1, 1, ELoadType::BeamForce, loadCase, {}, 1));
    }
    std::vector<std::int32_t> cases;
    table.Visit([&](const T_SATWE_STLD_D& load) { cases.push_back(load.loadCase); });
    EXPECT_EQ((std::vector<std::int32_t>{0, 1, 1, 1, 1}), cases);
}

TEST(LoadTable, VisitsOnlyWhatItIsAskedFor)
{
    CLoadTable table;
    table.Add(Load(1, 1, ELoadType::BeamForce, 0, {}, 1));
    table.Add(Load(1, 2, ELoadType::WallLine, 0, {}, 2));
    table.Add(Load(2, 3, ELoadType::WallLine, 1, {}, 3));
    std::vector<std::int32_t> visited;
    const auto visit = [&](const T_SATWE_STLD_D& load) { visited.push_back(load.memberId); };
    table.Visit([](ELoadType type, std::int32_t) { return type == ELoadType::WallLine; }, visit);
    EXPECT_EQ((std::vector<std::int32_t>{2, 3}), visited);
    visited.clear();
    table.Visit([](ELoadType, std::int32_t loadCase) { return loadCase == 0; }, visit);
    EXPECT_EQ((std::vector<std::int32_t>{1, 2}), visited);
}

struct CTraits {
    std::int32_t type;
    ELoadBlock block;
    std::size_t valueCount;
};

TEST(LoadTraits, SayWhichBlockTakesATypeAndHowManyValuesItUses)
{
    constexpr CTraits kTraits[] = {
        {1, ELoadBlock::Beam, 2},   {2, ELoadBlock::Beam, 4},      {3, ELoadBlock::Beam, 3},
        {4, ELoadBlock::Beam, 2},   {11, ELoadBlock::Nodal, 3},    {12, ELoadBlock::Nodal, 3},
        {21, ELoadBlock::Nodal, 2}, {22, ELoadBlock::Pressure, 1}, {31, ELoadBlock::None, 0},
        {0, ELoadBlock::Beam, 0},   {5, ELoadBlock::Beam, 0},      {-1, ELoadBlock::Beam, 0},
        {30, ELoadBlock::Beam, 0},  {32, ELoadBlock::Beam, 0},
    };
    for (const CTraits& expected : kTraits) {
        SCOPED_TRACE(expected.type);
        const CLoadTraits traits = TraitsOf(ELoadType{expected.type});
        EXPECT_EQ(expected.block, traits.block);
        EXPECT_EQ(expected.valueCount, traits.valueCount);
    }
}

}  // namespace
}  // namespace satwecvt
