#include "picture/SlabOutline.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace satwecvt {
namespace {

/// The loops, each turned so that it starts with its least number, in order.
std::vector<CSlabLoop> LoopsOf(const std::vector<CSlabTriangle>& triangles)
{
    std::vector<CSlabLoop> loops = SlabOutline(triangles);
    for (CSlabLoop& loop : loops) {
        std::rotate(loop.begin(), std::min_element(loop.begin(), loop.end()), loop.end());
    }
    std::sort(loops.begin(), loops.end());
    return loops;
}

using CLoops = std::vector<CSlabLoop>;

TEST(SlabOutline, AFanIsItsCornersInOrder)
{
    EXPECT_EQ(LoopsOf({{5, 9, 7}}), (CLoops{{5, 9, 7}}));
    EXPECT_EQ(LoopsOf({{1, 2, 3}, {1, 3, 4}, {1, 4, 5}}), (CLoops{{1, 2, 3, 4, 5}}));
    EXPECT_EQ(LoopsOf({{4, 3, 2}, {4, 2, 1}}), (CLoops{{1, 4, 3, 2}}));
}

TEST(SlabOutline, AFanWithAGapIsTwoLoopsThatMeet)
{
    EXPECT_EQ(LoopsOf({{1, 2, 3}, {1, 4, 5}}), (CLoops{{1, 2, 3}, {1, 4, 5}}));
}

TEST(SlabOutline, TrianglesThatCancelLeaveNothing)
{
    EXPECT_EQ(LoopsOf({{1, 2, 3}, {3, 2, 1}}), CLoops{});
    EXPECT_EQ(LoopsOf({}), CLoops{});
    EXPECT_EQ(LoopsOf({{7, 7, 7}}), CLoops{});
}

TEST(SlabOutline, TheSameTriangleTwiceIsTwoLoops)
{
    EXPECT_EQ(LoopsOf({{1, 2, 3}, {1, 2, 3}}), (CLoops{{1, 2, 3}, {1, 2, 3}}));
}

TEST(SlabOutline, EveryStepIsTakenOnce)
{
    std::vector<CSlabTriangle> triangles;
    triangles.reserve(3000);
    for (std::int32_t i = 0; i < 3000; ++i) {
        triangles.push_back({i * 7 % 40, i * 11 % 37, i * 13 % 43});
    }
    for (const CSlabLoop& loop : SlabOutline(triangles)) {
        EXPECT_GE(loop.size(), 2U);
    }
}

TEST(SlabOutline, ALargeFanTakesNoTime)
{
#ifdef _GLIBCXX_DEBUG
    constexpr std::int32_t kNodes = 10'000;  // the checked library looks at all of them in each search
#else
    constexpr std::int32_t kNodes = 200'000;
#endif
    std::vector<CSlabTriangle> triangles;
    for (std::int32_t i = 2; i < kNodes; ++i) {
        triangles.push_back({1, i, i + 1});
    }
    const CLoops loops = LoopsOf(triangles);
    ASSERT_EQ(loops.size(), 1U);
    EXPECT_EQ(loops[0].size(), static_cast<std::size_t>(kNodes));
}

}  // namespace
}  // namespace satwecvt
