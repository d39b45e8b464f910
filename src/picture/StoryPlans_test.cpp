#include "picture/StoryPlans.h"

#include "picture/PictureOfFrame_test.h"
#include "picture/SvgParts_test.h"

#include <gtest/gtest.h>

#include <string>

namespace satwecvt {
namespace {

std::string PlanOfFrame(const CFramePicture& frame)
{
    const CPicture picture = frame.Picture();
    return CStoryPlans(picture).Plan(0);
}

// The frame reaches from -300 to 6300 and from -300 to 5400: half of a beam's height of 600 beyond its ends, of which
// those of beam 3 lie at 5100. At 1:20 these are 330 by 285 mm, which go onto A2: 594 by 420 mm less a border of 20 on
// the left and 10 around, less 62 for the title block, less 20 left, 10 right, 10 above and 26 below the plan. That
// leaves 40 to 512 and 20 to 384, so that (3000, 2550) stands in the middle, at (276, 202): a place is at
// (276 + (x - 3000) / 20, 202 - (y - 2550) / 20).

TEST(StoryPlan, StandsOnTheSmallestSheetAtTheLargestScale)
{
    const std::string svg = PlanOfFrame(CFramePicture());
    EXPECT_NE(svg.find(R"(width="594mm" height="420mm" viewBox="0 0 594 420")"), std::string::npos);
    EXPECT_NE(svg.find(">1:20, lengths taken as mm<"), std::string::npos);
    EXPECT_NE(svg.find(">A2, 594 x 420 mm<"), std::string::npos);
    EXPECT_NE(svg.find(">1 m<"), std::string::npos);  // the scale bar
}

TEST(StoryPlan, BeamsAreAsWideAsTheirSections)
{
    const std::string svg = PlanOfFrame(CFramePicture());
    EXPECT_EQ(PathOf(svg, "e1"), "M126 337h300v-15h-300z");      // from (0, -150) to (6000, 150)
    EXPECT_EQ(PathOf(svg, "e2"), "M433.5 329.5v-250h-15v250z");  // from (6150, 0) to (5850, 5000)
    EXPECT_EQ(PathOf(svg, "e3"), "M426 67h-300v15h300z");        // between y 5250 and 4950, by its offsets
    EXPECT_EQ(PathOf(svg, "e4"), "M121 79.5v250h10v-250z");      // a flange of 200
    EXPECT_EQ(CountIn(GroupOf(svg, "beams"), "<path id=\"e"), 4U);
    EXPECT_NE(svg.find("<g id=\"beams-1\">"), std::string::npos);
    EXPECT_EQ(CountIn(svg, "<use href=\"#beams-1\" "), 1U);
}

TEST(StoryPlan, ColumnsAreCut)
{
    const std::string svg = PlanOfFrame(CFramePicture());
    EXPECT_EQ(PathOf(svg, "e5"), "M113.5 317v25h25v-25z");  // from (-250, -250) to (250, 250)
    EXPECT_EQ(PathOf(svg, "e7"), "M413.5 67v25h25v-25z");
    EXPECT_EQ(CountIn(GroupOf(svg, "columns"), "<path id=\"e"), 4U);
    EXPECT_EQ(svg.find("class=\"steel\""), std::string::npos);
}

TEST(StoryPlan, ASlabIsItsOutline)
{
    const std::string svg = PlanOfFrame(CFramePicture());
    EXPECT_EQ(PathOf(svg, "s1"), "M126 329.5h300v-250h-300z");
    EXPECT_NE(svg.find(">h=120</text>"), std::string::npos);
}

TEST(StoryPlan, HingesAreBesideTheColumnsAndSupportsAtTheirFeet)
{
    const std::string svg = PlanOfFrame(CFramePicture());
    // Beam 4 runs along x 126 from y 79.5 to 329.5; the columns take 12.5 of both ends, and 1.4 more is kept free.
    EXPECT_NE(GroupOf(svg, "hinges").find(R"(<circle cx="126" cy="93.4" r=".7"/>)"), std::string::npos);
    EXPECT_NE(GroupOf(svg, "hinges").find(R"(<circle cx="126" cy="315.6" r=".7"/>)"), std::string::npos);
    EXPECT_EQ(CountIn(svg, "<circle"), 2U);
    EXPECT_EQ(PathOf(svg, "n1"), "M126 329.5l-1.2 2.4h2.4z");
    EXPECT_EQ(CountIn(GroupOf(svg, "supports"), "<path id=\"n"), 4U);
}

TEST(StoryPlan, NamesSectionsAndColumns)
{
    const std::string svg = PlanOfFrame(CFramePicture());
    EXPECT_EQ(CountIn(svg, ">300x600<"), 3U);
    EXPECT_EQ(CountIn(svg, ">H400x200x8x13<"), 1U);
    for (const char* number : {">5<", ">6<", ">7<", ">8<"}) {
        EXPECT_EQ(CountIn(GroupOf(svg, "labels"), number), 1U) << number;
    }
}

TEST(StoryPlan, TheTitleBlockCounts)
{
    const std::string title = Between(PlanOfFrame(CFramePicture()), "class=\"title-block\"", "</svg>");
    EXPECT_NE(title.find(">Story 1<"), std::string::npos);
    EXPECT_NE(title.find(">frame/structure.sat<"), std::string::npos);
    EXPECT_NE(title.find(">1, 7<"), std::string::npos);  // key and number
    EXPECT_NE(title.find(">z = 3600<"), std::string::npos);
    EXPECT_EQ(Between(title, ">Beams</text>\n", "</text>").back(), '4');
    EXPECT_EQ(Between(title, ">Columns</text>\n", "</text>").back(), '4');
    EXPECT_EQ(Between(title, ">Braces</text>\n", "</text>").back(), '0');
    EXPECT_NE(title.find(">1 in 2 triangles<"), std::string::npos);
    EXPECT_EQ(Between(title, ">Losses</text>\n", "</text>").back(), '0');
    EXPECT_EQ(title.find("Not drawn"), std::string::npos);
    EXPECT_EQ(title.find("On no plan"), std::string::npos);
}

TEST(StoryPlan, TheLegendNamesWhatIsThere)
{
    const std::string legend = Between(PlanOfFrame(CFramePicture()), "class=\"legend\"", "class=\"title-block\"");
    for (const char* there : {"Slab, h its thickness", "Beam, as wide as its section", "Column of concrete",
                              "Support, held in all directions", "Hinge"}) {
        EXPECT_NE(legend.find(there), std::string::npos) << there;
    }
    for (const char* missing : {"Brace", "Wall", "Steel", "Lost"}) {
        EXPECT_EQ(legend.find(missing), std::string::npos) << missing;
    }
}

TEST(StoryPlan, DimensionsAreFromNodeToNode)
{
    const std::string svg = PlanOfFrame(CFramePicture());
    // 9 mm below what is drawn, which ends at y = -300, that is at 344.5.
    EXPECT_NE(svg.find("M126 353.5h300"), std::string::npos);
    EXPECT_NE(svg.find(">6000</text>"), std::string::npos);
    EXPECT_NE(svg.find(">5000</text>"), std::string::npos);
}

TEST(StoryPlan, DimensionsAreToTheMillimetre)
{
    CFramePicture frame;
    frame.model.nodes[1].x = 6000.6;
    EXPECT_NE(PlanOfFrame(frame).find(">6001</text>"), std::string::npos);
    for (CNode& node : frame.model.nodes) {
        node = {node.number, node.x / 1000.0, node.y / 1000.0, node.z / 1000.0};
    }
    const std::string svg = PlanOfFrame(frame);
    EXPECT_NE(svg.find(">6.001</text>"), std::string::npos);
    EXPECT_NE(svg.find("lengths taken as m<"), std::string::npos);
}

TEST(StoryPlan, BracesAndWallsHaveTheirLooks)
{
    CFramePicture frame;
    frame.AddFrame(EObject::Brace, {11, 1, 1, 7, 5, 0});
    frame.AddPlanar({EPlanarElement::Wall, 12, 1, 1, {1, 2, 6, 5}});
    const std::string svg = PlanOfFrame(frame);
    EXPECT_EQ(GroupOf(svg, "braces").substr(0, 30), R"( fill="none" stroke="#1c5fae" )");
    EXPECT_NE(svg.find("stroke-dasharray=\"3 1.2\""), std::string::npos);
    EXPECT_EQ(PathOf(svg, "e11"), "M126 329.5l300-250");       // from left to right, whichever end is first
    EXPECT_EQ(PathOf(svg, "e12"), "M126 332.5h300v-6h-300z");  // 60 on both sides
}

TEST(StoryPlan, WhatHasNoSectionIsALineOrACross)
{
    CFramePicture frame;
    frame.model.frameElements[0].section = 99;
    frame.model.frameElements[4].section = 99;
    const std::string svg = PlanOfFrame(frame);
    EXPECT_EQ(PathOf(svg, "e1"), "M126 329.5h300");
    EXPECT_NE(GroupOf(svg, "beam-lines").find("id=\"e1\""), std::string::npos);
    EXPECT_EQ(PathOf(svg, "e5"), "M125.2 328.7l1.6 1.6M125.2 330.3l1.6-1.6");
    EXPECT_NE(GroupOf(svg, "column-marks").find("id=\"e5\""), std::string::npos);
}

TEST(StoryPlan, AColumnIsTurnedByItsAngle)
{
    CFramePicture frame;
    frame.model.sections[2].values = {600, 200};  // 600 along x at angle 0
    frame.model.frameElements[5].angle = 90;
    frame.model.frameElements[6].angle = 30;
    const std::string svg = PlanOfFrame(frame);
    EXPECT_EQ(PathOf(svg, "e5"), "M111 324.5v10h30v-10z");
    EXPECT_EQ(PathOf(svg, "e6"), "M421 344.5h10v-30h-10z");
    // The corner at the lower y and z ends, (-100, -300), lies at -300 (cos 30, sin 30) + 100 (-sin 30, cos 30).
    EXPECT_EQ(PathOf(svg, "e7").substr(0, 13), "M410.51 82.67");
}

TEST(StoryPlan, ASteelColumnIsBlackAndACompositeOneBoth)
{
    CFramePicture frame;
    frame.model.frameElements[4].material = 2;
    frame.model.sections.push_back({4, ESection::Composite, "EPC", {}, {}, {560, 0, 600, 20}});
    frame.model.frameElements[5].section = 4;
    const std::string svg = PlanOfFrame(frame);
    EXPECT_NE(GroupOf(svg, "steel").find("id=\"e5\""), std::string::npos);
    EXPECT_EQ(PathOf(svg, "e6"), "M412 329.5a14 14 0 1 1 28 0a14 14 0 1 1-28 0z");
    EXPECT_NE(GroupOf(svg, "steel")
                  .find("M411 329.5a15 15 0 1 1 30 0a15 15 0 1 1-30 0z"
                        "M412 329.5a14 14 0 1 0 28 0a14 14 0 1 0-28 0z"),
              std::string::npos);
}

TEST(StoryPlan, PiecesOfAColumnHaveOneLabel)
{
    CFramePicture frame;
    frame.model.nodes.push_back({9, 0, 0, 1800});
    frame.nodes.push_back({EObject::Node, 0, 9, 0});
    frame.AddFrame(EObject::Column, {11, 3, 3, 1, 9, 0});
    frame.AddFrame(EObject::Column, {12, 3, 3, 9, 5, 0});
    frame.frames[8].key = frame.frames[9].key = 5;
    const std::string svg = PlanOfFrame(frame);
    EXPECT_EQ(CountIn(svg, ">11, 12<"), 1U);
    EXPECT_EQ(PathOf(svg, "e11"), PathOf(svg, "e12"));
}

TEST(StoryPlan, AColumnThatLeansShowsItsFoot)
{
    CFramePicture frame;
    frame.model.frameElements[4].nodeI = 2;  // from (6000, 0, 0) to (0, 0, 3600): it lies more than it stands
    frame.model.nodes[1].x = 1000;           // and now it stands
    const std::string svg = PlanOfFrame(frame);
    EXPECT_NE(svg.find("class=\"leans\""), std::string::npos);
    EXPECT_EQ(CountIn(GroupOf(svg, "columns"), "id=\"e5\""), 1U);
}

TEST(StoryPlan, LossesOfTheStoryAreShown)
{
    CFramePicture frame;
    frame.stories = {{1, 7, 34}, {2, 8, 90}};
    for (const std::int32_t story : {1, 1, 2}) {
        CFinding finding = MakeFinding(EFinding::WallNotUpright, {ESource::StructureFile, 50});
        finding.story = story;
        frame.findings.push_back(finding);
    }
    frame.lostShapes = {{0, {{0, 0, 0}, {6000, 0, 0}, {6000, 0, 3600}, {0, 0, 3600}}},
                        {2, {{0, 0, 3600}, {0, 5000, 3600}, {6000, 5000, 3600}}}};
    frame.lostLoads = {{1, {0, 5000, 3600}, {6000, 5000, 3600}, 1, 1}, {1, {0, 0, 0}, {0, 0, 0}, 1, 1}};
    const CPicture picture = frame.Picture();
    const CStoryPlans plans(picture);
    const std::string first = plans.Plan(0);
    EXPECT_NE(GroupOf(first, "lost").find("d=\"M126 329.5h300\""), std::string::npos);
    EXPECT_NE(GroupOf(first, "lost-loads").find("d=\"M126 79.5h300\""), std::string::npos);
    EXPECT_NE(GroupOf(first, "lost-loads").find("d=\"M124.8 328.3l2.4 2.4M124.8 330.7l2.4-2.4\""), std::string::npos);
    EXPECT_NE(first.find("font-weight=\"bold\">2</text>"), std::string::npos);
    const std::string second = plans.Plan(1);
    EXPECT_NE(GroupOf(second, "lost").find("d=\"M126 329.5v-250h300z\""), std::string::npos);
    EXPECT_EQ(second.find("class=\"lost-loads\""), std::string::npos);
    EXPECT_EQ(second.find("id=\"e"), std::string::npos);
}

TEST(StoryPlan, WhatHasNoStoryIsCountedAndNotDrawn)
{
    CFramePicture frame;
    frame.frames[0] = {};
    const std::string svg = PlanOfFrame(frame);
    EXPECT_EQ(PathOf(svg, "e1"), "");
    EXPECT_NE(svg.find(">1 element, story unknown<"), std::string::npos);
}

TEST(StoryPlan, HasNoStyleAndIsWellFormedWhateverThePathIs)
{
    CFramePicture frame;
    frame.path = "a<b>&\"c\x1B\xFF/\xE6\xA5\xBC.sat";
    const std::string svg = PlanOfFrame(frame);
    ExpectWellFormed(svg);
    EXPECT_NE(svg.find(">a&lt;b&gt;&amp;\"c\\x1B\\xFF/\xE6\xA5\xBC.sat<"), std::string::npos);
    EXPECT_EQ(svg.find("style"), std::string::npos);
}

TEST(StoryPlan, FileNamesArePaddedToTheWidestKey)
{
    CFramePicture frame;
    frame.stories = {{-4, 1, 1}, {3, 1, 2}, {120, 1, 3}};
    const CPicture picture = frame.Picture();
    const CStoryPlans plans(picture);
    EXPECT_EQ(plans.Name(0), "story--004.svg");
    EXPECT_EQ(plans.Name(1), "story-003.svg");
    EXPECT_EQ(plans.Name(2), "story-120.svg");
}

}  // namespace
}  // namespace satwecvt
