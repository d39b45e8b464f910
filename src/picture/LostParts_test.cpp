#include "picture/LostParts.h"

#include "check/TestModel_test.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

namespace satwecvt {
namespace {

/// A wall whose first upper node leans by 1 and a slab of four corners, on nodes 1 to 4, which stand at (4, 0, 0),
/// (0, 0, 0), (1, 0, 3) and (4, 0, 3). Node 9 is in neither.
class CLostPartsTest : public testing::Test {
protected:
    CLostPartsTest()
    {
        building.Story(6);
        Node(1, 4, 0);
        Node(2, 0, 0);
        Node(3, 1, 3);
        Node(4, 4, 3);
        building.Wall({3, 4}, {2, 1}).Plate({1, 2, 9, 3, 4});
        building.Beam(1, -2).Beam(9, 2);
    }

    void Node(std::int32_t number, double x, double z)
    {
        building.Node(number, x, 0, z);
        model.nodes.push_back({number, x, 0, z});
    }

    /// A finding about a member of story 6.
    CFinding Finding(EFinding code, EObject object, std::int32_t key, double value = 0.0)
    {
        CFinding finding = MakeFinding(code, {ESource::StructureFile, 1});
        finding.object = object;
        finding.story = 6;
        finding.key = key;
        finding.values[0] = value;
        return finding;
    }

    CLostParts Parts(const CFinding& finding) { return LostParts(building.Model(), model, std::vector{finding}); }

    CTestModel building;
    CModelFile model;
};

TEST_F(CLostPartsTest, AWallStandsBetweenTheEndsOfItsRows)
{
    const CLostParts parts = Parts(Finding(EFinding::WallNotUpright, EObject::Wall, 1));
    ASSERT_EQ(parts.shapes.size(), 1U);
    EXPECT_EQ(parts.shapes[0].finding, 0U);
    const std::vector<CPicturePoint>& corners = parts.shapes[0].corners;
    ASSERT_EQ(corners.size(), 4U);
    EXPECT_EQ(corners[0].x, 0.0);  // lower first, lower last, upper last, upper first
    EXPECT_EQ(corners[1].x, 4.0);
    EXPECT_EQ(corners[2].x, 4.0);
    EXPECT_EQ(corners[3].x, 1.0);
    EXPECT_EQ(corners[1].z, 0.0);
    EXPECT_EQ(corners[2].z, 3.0);
    EXPECT_TRUE(parts.loads.empty());
}

TEST_F(CLostPartsTest, AWallWithoutACornerHasTheOthers)
{
    model.nodes.pop_back();
    const CLostParts parts = Parts(Finding(EFinding::WallCornerMissing, EObject::Wall, 1));
    ASSERT_EQ(parts.shapes.size(), 1U);
    ASSERT_EQ(parts.shapes[0].corners.size(), 3U);
    EXPECT_EQ(parts.shapes[0].corners[2].x, 1.0);
}

TEST_F(CLostPartsTest, OneCornerAloneIsNoShape)
{
    model.nodes.resize(1);
    EXPECT_TRUE(Parts(Finding(EFinding::WallCornerMissing, EObject::Wall, 1)).shapes.empty());
}

/// The fan around node 1 is (1 2 9), (1 9 3) and (1 3 4), of which only the last is whole.
TEST_F(CLostPartsTest, ASlabLosesTheTrianglesAtAMissingCorner)
{
    const CLostParts parts = Parts(Finding(EFinding::PlateCornerMissing, EObject::Plate, 1));
    ASSERT_EQ(parts.shapes.size(), 2U);
    ASSERT_EQ(parts.shapes[0].corners.size(), 2U);
    EXPECT_EQ(parts.shapes[0].corners[1].x, 0.0);
    ASSERT_EQ(parts.shapes[1].corners.size(), 2U);
    EXPECT_EQ(parts.shapes[1].corners[1].x, 1.0);
}

TEST_F(CLostPartsTest, AFlatTriangleIsToldByItsNumber)
{
    const CLostParts parts = Parts(Finding(EFinding::FlatTriangle, EObject::Plate, 1, 3));
    ASSERT_EQ(parts.shapes.size(), 1U);
    ASSERT_EQ(parts.shapes[0].corners.size(), 3U);
    EXPECT_EQ(parts.shapes[0].corners[2].x, 4.0);
    EXPECT_TRUE(Parts(Finding(EFinding::FlatTriangle, EObject::Plate, 1, 4)).shapes.empty());
    EXPECT_TRUE(Parts(Finding(EFinding::FlatTriangle, EObject::Plate, 1, 0)).shapes.empty());
}

TEST_F(CLostPartsTest, AMemberThatIsNotThereHasNoPlace)
{
    EXPECT_TRUE(Parts(Finding(EFinding::WallNotUpright, EObject::Wall, 2)).shapes.empty());
    EXPECT_TRUE(Parts(Finding(EFinding::PlateCornerMissing, EObject::Plate, 2)).shapes.empty());
    CFinding elsewhere = Finding(EFinding::WallNotUpright, EObject::Wall, 1);
    elsewhere.story = 5;
    EXPECT_TRUE(Parts(elsewhere).shapes.empty());
}

/// A load is found by its line.
TEST_F(CLostPartsTest, ALineLoadHangsOnTheUpperEdgeOfItsWall)
{
    CSatweModel input = building.Model();
    input.loads.Add({6, 1, ELoadType::WallLine, 0, {7}, 41});
    input.loads.Add({6, 1, ELoadType::WallLine, 1, {5}, 42});
    CFinding finding = Finding(EFinding::LoadOnLostWall, EObject::Wall, 1);
    finding.place = {ESource::LoadFile, 42};
    const CLostParts parts = LostParts(input, model, std::vector{finding});
    ASSERT_EQ(parts.loads.size(), 1U);
    EXPECT_EQ(parts.loads[0].from.x, 4.0);
    EXPECT_EQ(parts.loads[0].to.x, 1.0);
    EXPECT_EQ(parts.loads[0].to.z, 3.0);
    EXPECT_EQ(parts.loads[0].valueFrom, -5.0);
    EXPECT_EQ(parts.loads[0].valueTo, -5.0);
}

TEST_F(CLostPartsTest, WhatIsCutOffABeamIsAtItsEnd)
{
    const CLostParts parts = Parts(Finding(EFinding::LoadCut, EObject::Beam, 1, 12));
    ASSERT_EQ(parts.loads.size(), 1U);
    EXPECT_EQ(parts.loads[0].from.x, 0.0);
    EXPECT_EQ(parts.loads[0].to.x, 0.0);
    EXPECT_EQ(parts.loads[0].valueFrom, -12.0);
}

TEST_F(CLostPartsTest, ASlabOfTwoCornersIsALine)
{
    building.Plate({1, 4});
    const CLostParts parts = Parts(Finding(EFinding::PlateTooFewCorners, EObject::Plate, 2));
    ASSERT_EQ(parts.shapes.size(), 1U);
    ASSERT_EQ(parts.shapes[0].corners.size(), 2U);
    EXPECT_EQ(parts.shapes[0].corners[1].z, 3.0);
}

TEST_F(CLostPartsTest, AForceOnAWallWithoutAnUpperNodeIsAtTheOther)
{
    model.nodes.pop_back();
    const CLostParts parts = Parts(Finding(EFinding::LoadNodeMissing, EObject::Wall, 1, 4));
    ASSERT_EQ(parts.loads.size(), 1U);
    EXPECT_EQ(parts.loads[0].from.x, 1.0);
    EXPECT_EQ(parts.loads[0].from.z, 3.0);
    EXPECT_TRUE(std::isnan(parts.loads[0].valueFrom));
}

TEST_F(CLostPartsTest, ALoadOnABeamWithoutANodeIsAtTheOther)
{
    const CLostParts parts = Parts(Finding(EFinding::LoadNodeMissing, EObject::Beam, 2, 9));
    ASSERT_EQ(parts.loads.size(), 1U);
    EXPECT_EQ(parts.loads[0].from.x, 0.0);
    EXPECT_TRUE(std::isnan(parts.loads[0].valueFrom));
    EXPECT_TRUE(Parts(Finding(EFinding::LoadNodeMissing, EObject::Node, 2, 9)).loads.empty());
}

}  // namespace
}  // namespace satwecvt
