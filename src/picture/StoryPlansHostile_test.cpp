#include "picture/PictureOfFrame_test.h"
#include "picture/StoryPlans.h"
#include "picture/SvgParts_test.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace satwecvt {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// The plan of the first story, which has to be well-formed and free of what is no number.
std::string WholePlanOf(const CFramePicture& frame)
{
    const CPicture picture = frame.Picture();
    std::string svg = CStoryPlans(picture).Plan(0);
    ExpectWellFormed(svg);
    EXPECT_EQ(svg.find("nan"), std::string::npos);
    EXPECT_EQ(svg.find("inf\""), std::string::npos);
    return svg;
}

TEST(StoryPlanHostile, ANodeWithoutAPlaceTakesItsElementsAway)
{
    for (const double bad : {std::nan(""), kInfinity, -kInfinity, 1e300, -2e9}) {
        CFramePicture frame;
        frame.model.nodes[4].x = bad;
        const std::string svg = WholePlanOf(frame);
        EXPECT_EQ(PathOf(svg, "e1"), "");
        EXPECT_NE(PathOf(svg, "e2"), "");
        EXPECT_NE(svg.find(">5, without a place<"), std::string::npos);  // beams 1 and 4, column 5, both triangles
        EXPECT_NE(svg.find(">1:20, lengths"), std::string::npos);
    }
}

TEST(StoryPlanHostile, AMissingNodeAndABadAngleDoSo)
{
    CFramePicture frame;
    frame.model.frameElements[0].nodeJ = 99;
    frame.model.frameElements[5].angle = std::nan("");
    frame.model.offsets[0].values[1] = kInfinity;
    EXPECT_NE(WholePlanOf(frame).find(">3, without a place<"), std::string::npos);
}

TEST(StoryPlanHostile, TheFarthestPlacesAreDrawn)
{
    CFramePicture frame;
    frame.model.nodes[4].x = -1e9;
    frame.model.nodes[6].x = 1e9;
    const std::string svg = WholePlanOf(frame);
    EXPECT_NE(svg.find(">1:5000000, lengths taken as mm<"), std::string::npos);
    EXPECT_EQ(svg.find("without a place"), std::string::npos);
}

TEST(StoryPlanHostile, SectionsThatAreNoneLeaveLinesAndCrosses)
{
    for (const double bad : {std::nan(""), kInfinity, -kInfinity, 1e300, -300.0, 0.0, 7000.0}) {
        CFramePicture frame;
        for (CSection& section : frame.model.sections) {
            section.values.fill(bad);
        }
        frame.model.thicknesses[0].value = bad;
        const std::string svg = WholePlanOf(frame);
        EXPECT_EQ(CountIn(GroupOf(svg, "beam-lines"), "<path"), 4U) << bad;
        EXPECT_EQ(CountIn(GroupOf(svg, "column-marks"), "<path"), 4U) << bad;
        EXPECT_EQ(svg.find(">h="), std::string::npos) << bad;
    }
}

TEST(StoryPlanHostile, WithoutNodesThereIsAnEmptySheet)
{
    CFramePicture frame;
    frame.model.nodes.clear();
    frame.nodes.clear();
    const std::string svg = WholePlanOf(frame);
    EXPECT_NE(svg.find(">A4, 297 x 210 mm<"), std::string::npos);
    EXPECT_NE(svg.find(">10, without a place<"), std::string::npos);
    EXPECT_EQ(svg.find("id=\"e"), std::string::npos);
}

TEST(StoryPlanHostile, AllNodesInOnePlace)
{
    CFramePicture frame;
    for (CNode& node : frame.model.nodes) {
        node.x = node.y = node.z = 7.0;
    }
    frame.model.offsets.clear();
    EXPECT_NE(WholePlanOf(frame).find(">1:20, lengths taken as m<"), std::string::npos);
}

TEST(StoryPlanHostile, LossesWithoutAPlaceAreCounted)
{
    CFramePicture frame;
    CFinding finding = MakeFinding(EFinding::WallNotUpright, {});
    finding.story = 1;
    frame.findings = {finding};
    frame.lostShapes = {{0, {{std::nan(""), 0, 0}, {0, 0, 0}}}, {0, {}}};
    frame.lostLoads = {{0, {0, 0, 0}, {kInfinity, 0, 0}, 1, 1}};
    EXPECT_NE(WholePlanOf(frame).find(">3, without a place<"), std::string::npos);
}

TEST(StoryPlanHostile, ManyElementsInOnePlaceTakeNoTime)
{
    CFramePicture frame;
    frame.model.sections[2].values = {5000, 5000};
    frame.model.thicknesses[0].value = 5000;
#ifdef _GLIBCXX_DEBUG
    constexpr std::int32_t kCount = 2'000;  // the checked library looks at all of them in each search
#else
    constexpr std::int32_t kCount = 50'000;
#endif
    for (std::int32_t i = 0; i < kCount; ++i) {
        frame.AddFrame(EObject::Column, {100 + i, 1, 3, 1, 5, 45.5});
        frame.AddFrame(EObject::Beam, {100'000 + i, 1, 1, 5, 7, 45.5});
        frame.AddPlanar({EPlanarElement::Wall, 200'000 + i, 1, 1, {1, 3, 7, 5}});
    }
    EXPECT_GT(WholePlanOf(frame).size(), 100U * kCount);
}

}  // namespace
}  // namespace satwecvt
