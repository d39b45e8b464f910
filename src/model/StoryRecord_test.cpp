#include "model/StoryRecord.h"

#include <gtest/gtest.h>

#include <limits>

namespace satwecvt {
namespace {

T_SATWE_STBM_D Beam(std::int32_t seq, std::int32_t nodeI, std::int32_t nodeJ)
{
    T_SATWE_STBM_D beam;
    beam.seq = seq;
    beam.nodeI = nodeI;
    beam.nodeJ = nodeJ;
    return beam;
}

TEST(Story, FindsTheOffsetsOfItsBeams)
{
    T_SATWE_STIF_D story;
    story.beamExtras = {{3, {30}}, {4, {40}}, {9, {90}}};
    EXPECT_EQ(30, story.OffsetsOf(Beam(3, -1, 2))->front());
    EXPECT_EQ(40, story.OffsetsOf(Beam(4, 1, -2))->front());
    EXPECT_EQ(90, story.OffsetsOf(Beam(9, -1, -2))->front());
    EXPECT_EQ(nullptr, story.OffsetsOf(Beam(3, 1, 2)));  // no end with an offset
    EXPECT_EQ(nullptr, story.OffsetsOf(Beam(5, -1, 2)));
    EXPECT_EQ(nullptr, T_SATWE_STIF_D().OffsetsOf(Beam(3, -1, 2)));
}

TEST(Story, FindsOffsetsAlsoWhereTheElementNumbersWrap)
{
    constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
    T_SATWE_STIF_D story;
    story.beamExtras = {{kMax - 1, {1}}, {kMax, {2}}, {kMin, {3}}, {kMin + 5, {4}}};
    EXPECT_EQ(1, story.OffsetsOf(Beam(kMax - 1, -1, 2))->front());
    EXPECT_EQ(2, story.OffsetsOf(Beam(kMax, -1, 2))->front());
    EXPECT_EQ(3, story.OffsetsOf(Beam(kMin, -1, 2))->front());
    EXPECT_EQ(4, story.OffsetsOf(Beam(kMin + 5, -1, 2))->front());
    EXPECT_EQ(nullptr, story.OffsetsOf(Beam(kMin + 4, -1, 2)));
}

TEST(Story, ItsGradesStandInTheirPlacesAndAreCutTowardZero)
{
    T_SATWE_STIF_D story;
    story.storyValues = {3600, 30.9, 40, -25.9, 20};
    story.storyExtra = 16;
    EXPECT_EQ(30, story.BeamGrade());
    EXPECT_EQ(30, story.BraceGrade());
    EXPECT_EQ(40, story.ColumnGrade());
    EXPECT_EQ(-25, story.WallGrade());
    EXPECT_EQ(20, story.PlateGrade());
    EXPECT_EQ(16, story.SteelGrade());
}

}  // namespace
}  // namespace satwecvt
