// What the look tells about walls, and slabs, with the same nodes.

#include "check/LookText_test.h"
#include "check/TestModel_test.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

using Texts = std::vector<std::string>;

/// A second story on the portal: nodes 9 to 12 above 5 to 8, with columns of the element numbers 9 to 12.
CTestModel TwoStories()
{
    CTestModel two = Portal();
    two.Story(2).Node(9, 0, 0, 6).Node(10, 8, 0, 6).Node(11, 8, 6, 6).Node(12, 0, 6, 6);
    two.Column(5, 9).Column(6, 10).Column(7, 11).Column(8, 12);
    return two;
}

TEST(PlanarPairs, WallsOnTheSameCornersAreToldOfTheFirst)
{
    CTestModel walls = Portal();
    walls.Wall({5, 6}, {1, 2}).Wall({5, 6}, {1, 2}, 300).Wall({6, 5}, {2, 1}).Wall({1, 2}, {5, 6});
    EXPECT_EQ(Texts({"same-nodes 1402 wall 2 of 1/11, 10: 9", "same-nodes 1403 wall 3 of 1/11, 11: 9",
                     "same-nodes 1404 wall 4 of 1/11, 12: 9"}),
              LookTexts(walls.Model()));
}

TEST(PlanarPairs, WallsOfTwoStoriesCanHaveTheSameCorners)
{
    CTestModel walls = TwoStories();
    walls.Wall({9, 10}, {5, 6}).Story(3).Wall({10, 9}, {6, 5});
    EXPECT_EQ(Texts({"same-nodes 3401 wall 1 of 3/13, 14: 13"}), LookTexts(walls.Model()));
}

TEST(PlanarPairs, WallsOnAndBesideEachOtherShareTwoCorners)
{
    CTestModel walls = TwoStories();
    walls.Wall({9, 10}, {5, 6}).Wall({10, 11}, {6, 7}).Wall({5, 6}, {1, 2}).Wall({9, 10}, {1, 2}).Wall({9, 5}, {5, 1});
    EXPECT_EQ(Texts(), LookTexts(walls.Model()));
}

TEST(PlanarPairs, WallsThatShareThreeNodesAreTwo)
{
    CTestModel walls = TwoStories();
    walls.Wall({9, 6}, {5, 2}).Wall({9, 6}, {1, 2}).Wall({9, 9}, {5, 5}).Wall({9, 5}, {5, 5});
    EXPECT_EQ(Texts({"zero-length 2403 wall 3 of 2/12, 15", "zero-length 2404 wall 4 of 2/12, 16"}),
              LookTexts(walls.Model()));
}

TEST(PlanarPairs, WallsByNodesThatCoincideAreNotOfTheSameNodes)
{
    CTestModel walls = Portal();
    walls.Node(9, 0, 0, 3).Wall({5, 6}, {1, 2}).Wall({9, 6}, {1, 2});
    EXPECT_EQ(Texts({"nodes-coincide 1005 node 9 of 1/11: 5"}), LookTexts(walls.Model()));
}

TEST(PlanarPairs, WallsThatAreNotWrittenDoNotCount)
{
    CTestModel lost = Portal();
    lost.Wall({5, 6}, {2, 1}).Wall({5, 6}, {2, 1}).Wall({5, 77}, {1, 77}).Wall({5, 77}, {1, 77});
    EXPECT_EQ(Texts(), LookTexts(lost.Model()));
    // The nodes of a leaning wall make an upright one in another order.
    CTestModel other = Portal();
    other.Wall({5, 6}, {2, 1}).Wall({5, 6}, {1, 2});
    EXPECT_EQ(Texts(), LookTexts(other.Model()));
}

TEST(PlanarPairs, SlabsWithTheSameNodesAreToldOnceAndOfTheFirst)
{
    // Triangles 9, 10; 11, 12; 13, which is 10 alone; 14, 15.
    CTestModel slabs = Portal();
    slabs.Plate({5, 6, 7, 8}).Plate({5, 6, 7, 8}, 200).Plate({8, 7, 5}).Plate({7, 6, 5, 8});
    EXPECT_EQ(Texts({"same-nodes 1502 plate 2 of 1/11, 11: 9", "same-nodes 1504 plate 4 of 1/11, 14: 9"}),
              LookTexts(slabs.Model()));
}

TEST(PlanarPairs, OfSeveralTrianglesThatHaveTheFirstOneIsTold)
{
    // Listed the other way round, the slab has the two triangles of the first in the other order: 11 is 10, 12 is 9.
    CTestModel reversed = Portal();
    reversed.Plate({5, 6, 7, 8}).Plate({5, 8, 7, 6});
    EXPECT_EQ(Texts({"same-nodes 1502 plate 2 of 1/11, 12: 9"}), LookTexts(reversed.Model()));
}

TEST(PlanarPairs, TwinsAreToldBesideAThirdSlabWithOneOfTheirTriangles)
{
    CTestModel three = Portal();
    three.Plate({5, 6, 7, 1}).Plate({5, 6, 7, 8}).Plate({5, 6, 7, 8});
    EXPECT_EQ(Texts({"same-nodes 1503 plate 3 of 1/11, 13: 11"}), LookTexts(three.Model()));
}

TEST(PlanarPairs, ASlabWithATriangleOfItsOwnIsNoDoubt)
{
    CTestModel last = Portal();
    last.Node(9, 4, -6, 3).Plate({5, 6, 7, 8}).Plate({5, 9, 6, 7});
    EXPECT_EQ(Texts(), LookTexts(last.Model()));
}

TEST(PlanarPairs, TheFoldOfAnInwardCornerIsNoDoubtOfItsNeighbour)
{
    // The outline 5, 6, 7, 9, 8 has its inward corner at 9: the triangle 5, 9, 8 of its fan lies beyond its edge, where
    // the neighbours have one, too.
    CTestModel folded = Portal();
    folded.Node(9, 1, 4, 3).Node(10, -4, 3, 3).Plate({5, 6, 7, 9, 8}).Plate({5, 9, 8, 10}).Plate({5, 9, 8});
    EXPECT_EQ(Texts(), LookTexts(folded.Model()));
}

TEST(PlanarPairs, ASlabListedFromTheNextCornerHasOtherTrianglesAndTheSameNodes)
{
    CTestModel turned = Portal();
    turned.Plate({5, 6, 7, 8}).Plate({6, 7, 8, 5});
    EXPECT_EQ(Texts({"same-nodes 1502 plate 2 of 1/11, 11: 9"}), LookTexts(turned.Model()));
    CTestModel triangle = Portal();
    triangle.Plate({5, 6, 7}).Plate({6, 7, 5});
    EXPECT_EQ(Texts({"same-nodes 1502 plate 2 of 1/11, 10: 9"}), LookTexts(triangle.Model()));
}

TEST(PlanarPairs, SlabsThatShareAnEdgeAndTrianglesOfOneSlabAreNotAskedAbout)
{
    CTestModel neighbours = Portal();
    neighbours.Node(9, 16, 0, 3).Node(10, 16, 6, 3).Plate({5, 6, 7, 8}).Plate({6, 9, 10, 7}).Plate({5, 7, 9});
    EXPECT_EQ(Texts(), LookTexts(neighbours.Model()));
    CTestModel folded = Portal();
    folded.Plate({5, 6, 7, 6, 7});
    EXPECT_EQ(Texts(), LookTexts(folded.Model()));
}

TEST(PlanarPairs, TrianglesThatAreNotWrittenDoNotCount)
{
    CTestModel flat = Portal();
    flat.Node(9, 4, 0, 3).Column(2, 9).Plate({5, 9, 6}).Plate({5, 6, 9}).Plate({5, 7, 77}).Plate({5, 7, 77});
    EXPECT_EQ(Texts({"node-on-member 1101 beam 1 of 1/11, 1: 9"}), LookTexts(flat.Model()));
}

TEST(PlanarPairs, WallsAndSlabsAreNotComparedWithEachOther)
{
    CTestModel mixed = Portal();
    mixed.Wall({5, 6}, {1, 2}).Plate({5, 6, 2, 1}).Wall({5, 6}, {1, 6}).Plate({5, 1, 6});
    EXPECT_EQ(Texts({"zero-length 1402 wall 2 of 1/11, 12"}), LookTexts(mixed.Model()));
}

TEST(PlanarPairs, TheOneWithTheHigherNumberIsTheLaterOne)
{
    CTestModel order;
    order.Support(1, 0, 0, 0).Support(2, 8, 0, 0).Story(2).Node(3, 0, 0, 3).Node(4, 8, 0, 3).Node(5, 8, 6, 3);
    order.Wall({3, 4}, {1, 2}).Plate({3, 5, 4}).Plate({3, 4, 5});
    order.Story(1).Plate({4, 5, 3}).Wall({3, 4}, {1, 2});
    EXPECT_EQ(Texts({"same-nodes 1502 plate 2 of 2/12, 3: 2", "same-nodes 2501 plate 1 of 1/11, 4: 2",
                     "same-nodes 2401 wall 1 of 1/11, 5: 1"}),
              LookTexts(order.Model()));
}

TEST(PlanarPairs, APlateThatTakesNumbersBackLeavesTheOthersWhole)
{
    // The second plate has no corner: the third one's triangles have the numbers of the first.
    CTestModel back = Portal();
    back.Plate({5, 6, 7, 8}).Plate({}).Plate({5, 8, 7, 6});
    EXPECT_EQ(Texts({"same-nodes 1503 plate 3 of 1/11, 10: 9"}), LookTexts(back.Model()));
}

}  // namespace
}  // namespace satwecvt
