#include "picture/Origins.h"

#include "check/TestModel_test.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace satwecvt {
namespace {

/// Tests tell origins as text: "beam 3 of 0 @1103", with the index of the story and the line.
std::string TextOf(const COrigin& origin)
{
    if (origin.object == EObject::None) {
        return "none";
    }
    return std::string(ObjectName(origin.object)) + " " + std::to_string(origin.key) + " of " +
           std::to_string(origin.story) + " @" + std::to_string(origin.line);
}

std::vector<std::string> TextsOf(const std::vector<COrigin>& origins)
{
    std::vector<std::string> texts;
    for (const COrigin& origin : origins) {
        texts.push_back(TextOf(origin));
    }
    return texts;
}

using CTexts = std::vector<std::string>;

TEST(Origins, OfNodesAreThoseOfTheSupportsAndThenOfTheStories)
{
    CTestModel building;
    building.Support(7, 0, 0, 0).Story(4).Node(9, 0, 0, 3).Node(8, 1, 0, 3).Story(2).Node(9, 0, 0, 6);
    CModelFile model;
    model.nodes = {{7, 0, 0, 0}, {9, 0, 0, 6}, {9, 0, 0, 3}, {8, 1, 0, 3}};
    EXPECT_EQ(TextsOf(NodeOrigins(building.Model(), model)),
              (CTexts{"node 1 of -1 @1", "node 1 of 0 @2001", "node 1 of 1 @1001", "node 2 of 1 @1002"}));
}

/// Beams, columns and braces are one kind of element in the model, and a split column is two.
TEST(Origins, OfFrameElementsTellTheKindOfTheMember)
{
    CTestModel building;
    building.Story(1).Beam(1, 2).Beam(-2, 3).SplitColumn(1, 4, 2).Column(3, 4).Brace(4, 1);
    CModelFile model;
    model.frameElements = {{1, 1, 1, 1, 2, 0}, {2, 1, 1, 2, 3, 0}, {3, 1, 1, 1, 4, 0},
                           {4, 1, 1, 4, 2, 0}, {5, 1, 1, 3, 4, 0}, {6, 1, 1, 4, 1, 0}};
    EXPECT_EQ(TextsOf(ElementOrigins(building.Model(), model).frameElements),
              (CTexts{"beam 1 of 0 @1101", "beam 2 of 0 @1102", "column 1 of 0 @1201", "column 1 of 0 @1201",
                      "column 2 of 0 @1202", "brace 1 of 0 @1301"}));
}

/// Of three walls the second is left out, of a slab's three triangles the first.
TEST(Origins, OfPlanarElementsPassOverWhatWasLeftOut)
{
    CTestModel building;
    building.Story(1).Wall({1, 2}, {3, 4}).Wall({1, 2}, {3, 9}).Wall({5, 6}, {7, 8}).Plate({1, 2, 3, 4, 5});
    CModelFile model;
    model.planarElements = {{EPlanarElement::Wall, 1, 1, 1, {3, 4, 2, 1}},
                            {EPlanarElement::Wall, 3, 1, 1, {7, 8, 6, 5}},
                            {EPlanarElement::Plate, 5, 1, 1, {1, 3, 4, 0}},
                            {EPlanarElement::Plate, 6, 1, 1, {1, 4, 5, 0}}};
    EXPECT_EQ(TextsOf(ElementOrigins(building.Model(), model).planarElements),
              (CTexts{"wall 1 of 0 @1401", "wall 3 of 0 @1403", "plate 1 of 0 @1501", "plate 1 of 0 @1501"}));
}

TEST(Origins, OfWhatNoRecordIsLikeAreNone)
{
    CTestModel building;
    building.Story(1).Node(1, 0, 0, 0).Beam(1, 2).Wall({1, 2}, {3, 4});
    CModelFile model;
    model.nodes = {{2, 0, 0, 0}};
    model.frameElements = {{1, 1, 1, 2, 1, 0}};
    model.planarElements = {{EPlanarElement::Plate, 2, 1, 1, {3, 4, 2, 1}}};
    EXPECT_EQ(TextsOf(NodeOrigins(building.Model(), model)), CTexts{"none"});
    const CElementOrigins elements = ElementOrigins(building.Model(), model);
    EXPECT_EQ(TextsOf(elements.frameElements), CTexts{"none"});
    EXPECT_EQ(TextsOf(elements.planarElements), CTexts{"none"});
}

TEST(Origins, OfNothingAreNothing)
{
    const CElementOrigins elements = ElementOrigins(CSatweModel(), CModelFile());
    EXPECT_TRUE(elements.frameElements.empty());
    EXPECT_TRUE(elements.planarElements.empty());
    EXPECT_TRUE(NodeOrigins(CSatweModel(), CModelFile()).empty());
}

}  // namespace
}  // namespace satwecvt
