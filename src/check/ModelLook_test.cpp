#include "check/ModelLook.h"

#include "check/LookText_test.h"
#include "check/TestModel_test.h"

#include <gtest/gtest.h>

#include <limits>

namespace satwecvt {
namespace {

using Texts = std::vector<std::string>;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(ModelLook, ARegularBuildingGivesNoDoubt)
{
    EXPECT_EQ(Texts(), LookTexts(Portal().Model()));
    EXPECT_EQ(Texts(), LookTexts(CTestModel().Model()));
    EXPECT_EQ(Texts(), LookTexts(CSatweModel()));
}

TEST(ModelLook, StoriesAreNumberedFrom1)
{
    EXPECT_EQ(Texts({"story-key 1000 story of 3/13: 2"}), LookTexts(CTestModel().Story(3).Story(1).Model()));
    EXPECT_EQ(Texts({"story-key 1000 story of -1/9: 2", "story-key 2000 story of 0/10: 2"}),
              LookTexts(CTestModel().Story(-1).Story(0).Model()));
    EXPECT_EQ(Texts(), LookTexts(CTestModel().Story(2).Story(1).Model()));
}

TEST(ModelLook, OfNodesWithOneNumberTheLastOneCounts)
{
    CTestModel twice = Portal();
    twice.Node(2, 8, 0, 0).Story(2).Node(2, 8, 0, 0);
    EXPECT_EQ(Texts({"node-number-twice 2 node 2: 2001", "node-number-twice 1005 node 2 of 1/11: 2001"}),
              LookTexts(twice.Model()));
}

TEST(ModelLook, MembersNameNodesThatAreThere)
{
    CTestModel missing = Portal();
    missing.Beam(-5, 90).SplitColumn(1, 91, 5).Brace(92, 92).Brace(5, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Texts({"node-missing 1105 beam 5 of 1/11, 9: 90", "node-missing 1205 column 5 of 1/11, 10: 91",
                     "node-missing 1301 brace 1 of 1/11, 12: 92", "node-missing 1302 brace 2 of 1/11, 13: -2147483648",
                     "zero-length 1301 brace 1 of 1/11, 12", "not-supported 1301 brace 1 of 1/11, 12: 1"}),
              LookTexts(missing.Model()));
}

TEST(ModelLook, NodesThatNoElementNamesAreCountedByLevel)
{
    CTestModel unused = Portal();
    unused.Support(90, 4, 4, 0).Support(91, 4, 5, 0).Node(92, 4, 4, 3).Story(2).Node(93, 4, 4, 6).Node(94, 5, 5, 6);
    EXPECT_EQ(
        Texts({"node-unused 5 story: 2", "node-unused 1000 story of 1/11: 1", "node-unused 2000 story of 2/12: 2"}),
        LookTexts(unused.Model()));
}

TEST(ModelLook, NodesOfWallsAndTrianglesThatAreWrittenAreUsed)
{
    CTestModel used = Portal();
    used.Node(9, 3, 2, 3).Wall({5, 6}, {1, 2}).Plate({9, 5, 6, 7});
    EXPECT_EQ(Texts(), LookTexts(used.Model()));
    CTestModel lost = Portal();
    lost.Node(9, 3, 2, 3).Node(10, 3, 2, 1).Node(11, 6, 4, 3);
    lost.Wall({9, 6}, {1, 2}).Wall({10, 77}, {9, 77}).Plate({5, 9, 11}).Plate({9, 77, 6}).Plate({9, 5});
    EXPECT_EQ(Texts({"node-unused 1000 story of 1/11: 3"}), LookTexts(lost.Model()));
}

TEST(ModelLook, WallsAndSlabsHaveNoEdgeWithoutLength)
{
    CTestModel flat = Portal();
    flat.Wall({5, 5}, {1, 1}).Wall({5, 6}, {5, 6}).Wall({5, 6}, {1, 6}).Plate({5, 6, 5}).Plate({5, 6, 7, 8, 5});
    EXPECT_EQ(Texts({"zero-length 1401 wall 1 of 1/11, 9", "zero-length 1402 wall 2 of 1/11, 10",
                     "zero-length 1403 wall 3 of 1/11, 11", "zero-length 1501 plate 1 of 1/11, 12"}),
              LookTexts(flat.Model()))
        << "the outline that ends where it began has a triangle without area there, which is left out";
    // A millionth of the greatest extent is 0.000008.
    CTestModel near = Portal();
    near.Node(9, 8, 0, 3.000005).Column(6, 9).Plate({5, 6, 9, 8});
    EXPECT_EQ(Texts({"zero-length 1205 column 5 of 1/11, 9", "zero-length 1501 plate 1 of 1/11, 10",
                     "nodes-coincide 1005 node 9 of 1/11: 6"}),
              LookTexts(near.Model()));
    CTestModel apart = Portal();
    apart.Node(9, 8, 0, 3.00001).Column(6, 9).Plate({5, 6, 9, 8});
    EXPECT_EQ(Texts(), LookTexts(apart.Model()));
}

TEST(ModelLook, SectionsAreDefined)
{
    CTestModel sections = Portal();
    sections.Node(9, 3, 2, 3).Beam(5, 9, 2).Brace(1, 9, -7).Column(3, 9, 1);
    EXPECT_EQ(Texts({"section-missing 1105 beam 5 of 1/11, 9: 2", "section-missing 1301 brace 1 of 1/11, 10: -7"}),
              LookTexts(sections.Model()));
}

TEST(ModelLook, OfSectionsWithOneNumberTheLastOneCounts)
{
    CTestModel twice = Portal();
    twice.Section(1, ESectionKind::Rectangle, kSteelMark).Section(2, ESectionKind::Rectangle, kConcreteMark);
    EXPECT_EQ(Texts({"section-number-twice 901 section 1: 901"}), LookTexts(twice.Model()));
    CTestModel same = Portal();
    same.Section(1, ESectionKind::Rectangle, kConcreteMark);
    EXPECT_EQ(Texts(), LookTexts(same.Model()));
}

TEST(ModelLook, SectionsInUseHaveLines)
{
    const auto texts = [](std::int32_t kind) {
        CTestModel kinds;
        kinds.Section(4, static_cast<ESectionKind>(kind), kConcreteMark).Section(5, ESectionKind{77}, kSteelMark);
        kinds.Support(1, 0, 0, 0).Story(1).Node(2, 0, 0, 3).Node(3, 0, 9, 3).Column(1, 2, 4).Beam(2, 3, 4);
        return LookTexts(kinds.Model());
    };
    for (std::int32_t kind = 0; kind <= 14; ++kind) {
        EXPECT_EQ(Texts(), texts(kind)) << kind;
    }
    EXPECT_EQ(Texts({"section-kind 904 section 4: 15 2"}), texts(15));
    EXPECT_EQ(Texts({"section-kind 904 section 4: -1 2"}), texts(-1));
}

/// A column, a beam and a brace of three sections, in a story of these grades.
Texts GradeTexts(double beams, double columns, std::int32_t steel, std::int32_t columnSection, std::int32_t beamSection,
                 std::int32_t braceSection)
{
    CTestModel graded;
    graded.Section(2, ESectionKind::H, kSteelMark).Section(3, ESectionKind::EncasedH, kConcreteMark);
    graded.Support(1, 0, 0, 0).Story(1).Grades(beams, columns, steel).Node(2, 0, 0, 3).Node(3, 0, 9, 3);
    graded.Column(1, 2, columnSection).Beam(2, 3, beamSection).Brace(1, 3, braceSection);
    return LookTexts(graded.Model());
}

TEST(ModelLook, SteelGradesAreKnown)
{
    for (const std::int32_t grade : {0, 3, 15, 16}) {
        EXPECT_EQ(Texts(), GradeTexts(30, 30, grade, 2, 2, 2)) << grade;
    }
    EXPECT_EQ(Texts({"grade-unknown 1000 story of 1/11: 7 3"}), GradeTexts(17, 17, 7, 2, 2, 2));
    EXPECT_EQ(Texts({"grade-unknown 1000 story of 1/11: -3 2"}), GradeTexts(30, 30, -3, 3, 2, 1));
    EXPECT_EQ(Texts(), GradeTexts(30, 30, 7, 1, 1, 1));
}

TEST(ModelLook, ConcreteGradesOfCompositeMembersAreKnown)
{
    for (const double grade : {0, 15, 30, 80}) {
        EXPECT_EQ(Texts(), GradeTexts(grade, grade, 3, 3, 3, 3)) << grade;
    }
    EXPECT_EQ(Texts(), GradeTexts(17, 17, 3, 1, 1, 2));
    EXPECT_EQ(Texts({"grade-unknown 1000 story of 1/11: 17 3 1"}), GradeTexts(17.9, 17, 3, 3, 3, 3));
    EXPECT_EQ(Texts({"grade-unknown 1000 story of 1/11: 17 2 1", "grade-unknown 1000 story of 1/11: 85 1 1"}),
              GradeTexts(17, 85, 3, 3, 3, 3));
    EXPECT_EQ(Texts({"grade-unknown 1000 story of 1/11: 85 1 1"}), GradeTexts(17, 85, 3, 3, 1, 1));
}

TEST(ModelLook, ASectionWithoutMarkGivesSteelBraces)
{
    EXPECT_EQ(Texts({"section-missing 1101 beam 1 of 1/11, 2: 9", "section-missing 1301 brace 1 of 1/11, 3: 9",
                     "grade-unknown 1000 story of 1/11: 7 1"}),
              GradeTexts(30, 30, 7, 1, 9, 9));
}

TEST(ModelLook, WallsAndPlatesHaveAThickness)
{
    CTestModel thin = Portal();
    thin.Wall({5, 6}, {1, 2}, 0).Wall({6, 7}, {2, 3}, 1e-9).Plate({5, 6, 7, 8}, -2.5).Plate({6, 7, 8}, kNaN);
    EXPECT_EQ(Texts({"thickness-zero 1401 wall 1 of 1/11, 9", "thickness-zero 1501 plate 1 of 1/11, 11: -2.5"}),
              LookTexts(thin.Model()));
}

TEST(ModelLook, PartsWithoutASupportAreToldAtTheirFirstElement)
{
    CTestModel parts = Portal();
    parts.Node(9, 4, 3, 3).Node(10, 5, 3, 3).Node(11, 5, 4, 3).Brace(10, 9).Plate({9, 10, 11});
    parts.Story(2).Node(12, 0, 0, 6).Node(13, 8, 0, 6).Node(14, 0, 0, 7).Node(15, 8, 0, 7).Wall({14, 15}, {12, 13});
    parts.Beam(11, 10).Beam(5, 99).Beam(98, 99);
    EXPECT_EQ(Texts({"node-missing 2102 beam 2 of 2/12, 13: 99", "node-missing 2103 beam 3 of 2/12, 14: 98",
                     "node-missing 2103 beam 3 of 2/12, 14: 99", "not-supported 1301 brace 1 of 1/11, 9: 3",
                     "not-supported 2401 wall 1 of 2/12, 11: 1"}),
              LookTexts(parts.Model()));
}

TEST(ModelLook, AWallCarriesWhatStandsOnIt)
{
    CTestModel wall = Portal();
    wall.Story(2).Node(9, 0, 0, 6).Node(10, 8, 0, 6).Wall({9, 10}, {5, 6}).Beam(9, 10);
    EXPECT_EQ(Texts(), LookTexts(wall.Model()));
}

TEST(ModelLook, NumbersOfStoryAndElementMayStandInAnyOrder)
{
    CTestModel order;
    order.Support(-5, 0, 0, 0).Story(2).Node(700, 0, 0, 6).Column(40, 700).Story(1).Node(40, 0, 0, 3).Column(5, 40);
    EXPECT_EQ(Texts({"node-missing 2201 column 1 of 1/11, 2: 5", "node-unused 1 story: 1",
                     "not-supported 1201 column 1 of 2/12, 1: 2"}),
              LookTexts(order.Model()));
}

}  // namespace
}  // namespace satwecvt
