// What the look tells about lengths, places and lines.

#include "check/LookText_test.h"
#include "check/TestModel_test.h"

#include <gtest/gtest.h>

#include <limits>

namespace satwecvt {
namespace {

using Texts = std::vector<std::string>;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(LookGeometry, MembersHaveALength)
{
    // The building is 8 long: places 8e-6 apart are one.
    CTestModel apart = Portal();
    apart.Node(9, 0, 0, 3 + 9e-6).Column(5, 9);
    EXPECT_EQ(Texts(), LookTexts(apart.Model()));
    CTestModel together = Portal();
    together.Node(9, 0, 0, 3 + 7e-6).Column(5, 9).Brace(6, -6);
    EXPECT_EQ(Texts({"zero-length 1205 column 5 of 1/11, 9", "zero-length 1301 brace 1 of 1/11, 10",
                     "nodes-coincide 1005 node 9 of 1/11: 5"}),
              LookTexts(together.Model()));
}

TEST(LookGeometry, MembersOfOneKindBetweenTheSameNodesAreToldOfTheFirst)
{
    CTestModel same = Portal();
    same.Beam(6, 5).Beam(-5, -6).Column(1, 5).Beam(5, 7);
    EXPECT_EQ(Texts({"same-nodes 1105 beam 5 of 1/11, 9: 1", "same-nodes 1106 beam 6 of 1/11, 10: 1",
                     "same-nodes 1205 column 5 of 1/11, 11: 5"}),
              LookTexts(same.Model()));
}

TEST(LookGeometry, MembersOfTwoKindsBetweenTheSameNodesOverlap)
{
    CTestModel two = Portal();
    two.Brace(6, 5).Brace(5, 6);
    EXPECT_EQ(Texts({"same-nodes 1302 brace 2 of 1/11, 10: 9", "members-overlap 1301 brace 1 of 1/11, 9: 1",
                     "members-overlap 1302 brace 2 of 1/11, 10: 1"}),
              LookTexts(two.Model()));
}

TEST(LookGeometry, UsedNodesAtOnePlaceAreToldOfTheLowestNumber)
{
    CTestModel coincident = Portal();
    coincident.Node(20, 8, 0, 3).Node(10, 8, 0, 3).Node(30, 8, 0, 3).Brace(20, 4).Brace(4, 10);
    EXPECT_EQ(Texts({"node-unused 1000 story of 1/11: 1", "nodes-coincide 1006 node 10 of 1/11: 6",
                     "nodes-coincide 1005 node 20 of 1/11: 6", "members-overlap 1302 brace 2 of 1/11, 10: 9"}),
              LookTexts(coincident.Model()));
}

TEST(LookGeometry, UsedNodesOnABeamOfTheirStoryAreToldOnce)
{
    const auto texts = [](double x, double y) {
        CTestModel onBeam = Portal();
        onBeam.Node(9, x, y, 3).Node(10, 5, 0, 3).Brace(2, 9).Brace(10, 3);
        return LookTexts(onBeam.Model());
    };
    EXPECT_EQ(Texts({"node-on-member 1101 beam 1 of 1/11, 1: 9"}), texts(4, 0));
    EXPECT_EQ(Texts({"node-on-member 1101 beam 1 of 1/11, 1: 9"}), texts(4, 7e-6));
    EXPECT_EQ(Texts({"node-on-member 1101 beam 1 of 1/11, 1: 10"}), texts(4, 9e-6));
    EXPECT_EQ(Texts({"node-on-member 1101 beam 1 of 1/11, 1: 10"}), texts(9, 0));
}

TEST(LookGeometry, NodesOfOtherStoriesOrOutOfUseAreNotAskedAbout)
{
    CTestModel other = Portal();
    other.Node(9, 4, 0, 3).Support(10, 2, 0, 3).Story(2).Node(11, 5, 0, 3).Brace(3, 11);
    EXPECT_EQ(Texts({"node-unused 5 story: 1", "node-unused 1000 story of 1/11: 1"}), LookTexts(other.Model()));
    CTestModel support = Portal();
    support.Support(10, 2, 0, 3).Brace(10, 7);
    EXPECT_EQ(Texts({"node-on-member 1101 beam 1 of 1/11, 1: 10"}), LookTexts(support.Model()));
}

TEST(LookGeometry, ANodeOnAColumnIsToldOnlyWhereAMemberGoesOnAlongIt)
{
    CTestModel beside = Portal();
    beside.Node(9, 0, 0, 2).Node(10, 4, 0, 2).Beam(9, 10).Column(2, 10);
    EXPECT_EQ(Texts(), LookTexts(beside.Model()));
    CTestModel along = Portal();
    along.Node(9, 0, 0, 2).Story(2).Node(10, 0, 0, 6).Column(9, 10);
    EXPECT_EQ(Texts({"members-overlap 2201 column 1 of 2/12, 9: 5", "not-supported 2201 column 1 of 2/12, 9: 1"}),
              LookTexts(along.Model()));
}

TEST(LookGeometry, BeamsThatCrossWithoutACommonNodeAreTold)
{
    CTestModel crossing = Portal();
    crossing.Beam(5, 7).Beam(6, 8);
    EXPECT_EQ(Texts({"beams-cross 1106 beam 6 of 1/11, 10: 9"}), LookTexts(crossing.Model()));
    CTestModel joined = Portal();
    joined.Node(9, 4, 3, 3).Beam(5, 9).Beam(9, 7).Beam(6, 9).Beam(9, 8);
    EXPECT_EQ(Texts(), LookTexts(joined.Model()));
    CTestModel braces = Portal();
    braces.Brace(5, 7).Brace(6, 8);
    EXPECT_EQ(Texts(), LookTexts(braces.Model()));
}

TEST(LookGeometry, BeamsThatPassOverEachOtherDoNotCross)
{
    const auto texts = [](double height) {
        CTestModel over = Portal();
        over.Node(9, 0, 0, height).Node(10, 8, 6, height).Beam(9, 10).Beam(6, 8).Column(5, 9).Column(7, 10);
        return LookTexts(over.Model());
    };
    EXPECT_EQ(Texts(), texts(3.5));
    EXPECT_EQ(Texts(), texts(3 + 11e-6));  // the beams are 10 long
    EXPECT_EQ(Texts({"beams-cross 1106 beam 6 of 1/11, 10: 9"}), texts(3 + 9e-6));
}

TEST(LookGeometry, BeamsOfTwoStoriesMayCross)
{
    CTestModel stories = Portal();
    stories.Beam(5, 7).Story(2).Beam(6, 8);
    EXPECT_EQ(Texts(), LookTexts(stories.Model()));
}

TEST(LookGeometry, ABeamThatEndsOnAnotherDoesNotCrossIt)
{
    CTestModel ends = Portal();
    ends.Node(9, 4, 0, 3).Beam(9, 8).Column(1, 9);
    EXPECT_EQ(Texts({"node-on-member 1101 beam 1 of 1/11, 1: 9"}), LookTexts(ends.Model()));
}

TEST(LookGeometry, MembersOnOneLineOverlapWhenTheyShareMoreThanAPoint)
{
    CTestModel overlap = Portal();
    overlap.Node(9, 4, 0, 3).Node(10, 12, 0, 3).Beam(9, 10);
    EXPECT_EQ(Texts({"node-on-member 1101 beam 1 of 1/11, 1: 9", "node-on-member 1105 beam 5 of 1/11, 9: 6",
                     "members-overlap 1105 beam 5 of 1/11, 9: 1", "not-supported 1105 beam 5 of 1/11, 9: 1"}),
              LookTexts(overlap.Model()));
    CTestModel inLine = Portal();
    inLine.Node(10, 12, 0, 3).Beam(6, 10);
    EXPECT_EQ(Texts(), LookTexts(inLine.Model()));
}

TEST(LookGeometry, CoordinatesThatAreNoNumbersHaveNoPlace)
{
    CTestModel odd = Portal();
    odd.Node(9, kNaN, 0, 3).Node(10, kNaN, 0, 3).Node(11, kInfinity, 0, 3).Node(12, -kInfinity, 0, 3);
    odd.Beam(5, 9).Beam(9, 10).Beam(10, 11).Beam(11, 12).Beam(12, 6).Brace(9, 10);
    EXPECT_EQ(Texts(), LookTexts(odd.Model()));
}

TEST(LookGeometry, CoordinatesAtTheEndsOfTheirRangeAreMeasured)
{
    constexpr double kFar = 1.5e308;
    CTestModel far;
    far.Support(1, -kFar, -kFar, 0).Support(2, kFar, -kFar, 0).Support(3, kFar, kFar, 0).Support(4, -kFar, kFar, 0);
    far.Story(1).Beam(1, 3).Beam(2, 4);
    EXPECT_EQ(Texts({"beams-cross 1102 beam 2 of 1/11, 2: 1"}), LookTexts(far.Model()));
    CTestModel near;
    near.Support(1, 0, 0, 0).Support(2, 5e-324, 0, 0).Story(1).Beam(1, 2);
    EXPECT_EQ(Texts({"zero-length 1101 beam 1 of 1/11, 1", "nodes-coincide 2 node 2: 1"}), LookTexts(near.Model()));
}

}  // namespace
}  // namespace satwecvt
