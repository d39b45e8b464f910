#include "modelfile/ModelTexts_test.h"

#include "doubles/BitCast.h"

#include <gtest/gtest.h>

#include <cmath>

namespace satwecvt {
namespace {

/// The properties that all elements of these tests have. The elements begin in line 13.
std::string WithElements(const std::string& elements)
{
    return ModelTextOf({.elements = elements,
                        .materials = kConcreteLine,
                        .sections = elements.find("BEAM") != std::string::npos ? kSectionLine : "",
                        .thicknesses = kThicknessLine});
}

TEST(NodeBlock, NodesAreReadInTheOrderOfTheFile)
{
    const CModelFile model = ReadModelFile(ModelTextOf({.nodes = "  7, 0, -0.5, 1.2348e+06\n"
                                                                 "  -3, 6000, 1e-07, -12\n"
                                                                 "  7, 1, 2, 3\n"}));
    ASSERT_EQ(3U, model.nodes.size());
    EXPECT_EQ(7, model.nodes[0].number);
    EXPECT_EQ(0.0, model.nodes[0].x);
    EXPECT_EQ(-0.5, model.nodes[0].y);
    EXPECT_EQ(1234800.0, model.nodes[0].z);
    EXPECT_EQ(-3, model.nodes[1].number);
    EXPECT_EQ(6000.0, model.nodes[1].x);
    EXPECT_EQ(1e-7, model.nodes[1].y);
    EXPECT_EQ(-12.0, model.nodes[1].z);
    EXPECT_EQ(7, model.nodes[2].number);
    EXPECT_EQ(3.0, model.nodes[2].z);
}

TEST(NodeBlock, ACoordinateCanBeNoNumberOrWithoutEndOrNegativeZero)
{
    const CModelFile model = ReadModelFile(ModelTextOf({.nodes = "  1, nan, -inf, -0\n"}));
    ASSERT_EQ(1U, model.nodes.size());
    EXPECT_TRUE(std::isnan(model.nodes[0].x));
    EXPECT_EQ(-HUGE_VAL, model.nodes[0].y);
    EXPECT_EQ(bit_cast<std::uint64_t>(-0.0), bit_cast<std::uint64_t>(model.nodes[0].z));
}

TEST(NodeBlock, ALineOfAnotherFormIsRefused)
{
    for (const std::string line : {"  1, 0, 0", "  1, 0, 0, 0, 0", "  1, 0, 0, 0,", " 1, 0, 0, 0", "  1, 0, 0, x",
                                   "  1.5, 0, 0, 0", "  2147483648, 0, 0, 0", "; a comment more", "  1, 0, 0, 0 "}) {
        const std::string text = ModelTextOf({.nodes = "  1, 0, 0, 0\n" + line + "\n"});
        EXPECT_EQ("line 7: no node is '" + line + "'", ComplaintAbout(text));
    }
}

TEST(ElementBlock, AFrameElementHasItsPropertiesNodesAndAngle)
{
    const CModelFile model = ReadModelFile(WithElements("  9, BEAM, 2, 3, 40, 50, -1.5\n"));
    ASSERT_EQ(1U, model.frameElements.size());
    const CFrameElement& frame = model.frameElements[0];
    EXPECT_EQ(9, frame.number);
    EXPECT_EQ(2, frame.material);
    EXPECT_EQ(3, frame.section);
    EXPECT_EQ(40, frame.nodeI);
    EXPECT_EQ(50, frame.nodeJ);
    EXPECT_EQ(-1.5, frame.angle);
}

TEST(ElementBlock, AWallHasFourNodesAndAPlateThree)
{
    const CModelFile model =
        ReadModelFile(WithElements("  9, WALL, 2, 3, 40, 50, 60, 70, 1, 1\n"
                                   "  10, PLATE, 4, 5, 41, 51, 61, 0, 1\n"));
    ASSERT_EQ(2U, model.planarElements.size());
    const CPlanarElement& wall = model.planarElements[0];
    EXPECT_EQ(EPlanarElement::Wall, wall.type);
    EXPECT_EQ(9, wall.number);
    EXPECT_EQ(2, wall.material);
    EXPECT_EQ(3, wall.thickness);
    EXPECT_EQ((std::array<std::int32_t, 4>{40, 50, 60, 70}), wall.nodes);
    const CPlanarElement& plate = model.planarElements[1];
    EXPECT_EQ(EPlanarElement::Plate, plate.type);
    EXPECT_EQ(10, plate.number);
    EXPECT_EQ(4, plate.material);
    EXPECT_EQ(5, plate.thickness);
    EXPECT_EQ((std::array<std::int32_t, 4>{41, 51, 61, 0}), plate.nodes);
}

TEST(ElementBlock, FrameAndPlanarElementsAreEachInTheOrderOfTheFile)
{
    const CModelFile model =
        ReadModelFile(WithElements("  4, BEAM, 1, 1, 1, 2, 0\n"
                                   "  3, PLATE, 1, 1, 1, 2, 3, 0, 1\n"
                                   "  2, BEAM, 1, 1, 1, 2, 0\n"
                                   "  1, WALL, 1, 1, 1, 2, 3, 4, 1, 1\n"));
    ASSERT_EQ(2U, model.frameElements.size());
    ASSERT_EQ(2U, model.planarElements.size());
    EXPECT_EQ(4, model.frameElements[0].number);
    EXPECT_EQ(2, model.frameElements[1].number);
    EXPECT_EQ(3, model.planarElements[0].number);
    EXPECT_EQ(1, model.planarElements[1].number);
}

TEST(ElementBlock, ALineOfAnotherFormIsRefused)
{
    for (const std::string line :
         {"  1, BEAM, 1, 1, 1, 2", "  1, BEAM, 1, 1, 1, 2, 0, 0", "  1, BEAM, 1, 1, 1.5, 2, 0",
          "  1, beam, 1, 1, 1, 2, 0", "  1, TRUSS, 1, 1, 1, 2, 0", "  1", "  1, ", "  1, BEAM", "BEAM",
          "  x, BEAM, 1, 1, 1, 2, 0", "  1, BEAM, 1, 1, 1, 99999999999, 0", "  1, WALL, 1, 1, 1, 2, 3, 4, 1, 2",
          "  1, WALL, 1, 1, 1, 2, 3, 1, 1", "  1, PLATE, 1, 1, 1, 2, 3, 4, 1", "  1, PLATE, 1, 1, 1, 2, 3, 0, 1, 1",
          "  1, PLATE, 1, 1, 1, 2, 0, 1"}) {
        const std::string text = WithElements("  2, BEAM, 1, 1, 1, 2, 0\n" + line + "\n");
        EXPECT_EQ("line 14: no element is '" + line + "'", ComplaintAbout(text));
    }
}

TEST(ElementBlock, TheHeaderCanStandAlone)
{
    const CModelFile model = ReadModelFile(kVersionText + kNodesText + BlockText("*ELEMENT    ; Elements", 4, "") +
                                           kSupportsText + kLoadCasesText);
    EXPECT_TRUE(model.frameElements.empty());
    EXPECT_TRUE(model.planarElements.empty());
}

}  // namespace
}  // namespace satwecvt
