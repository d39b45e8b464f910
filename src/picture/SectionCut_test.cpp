#include "picture/SectionCut.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

constexpr double kLongest = 5000.0;

std::optional<CSectionCut> CutOf(const std::string& shape, std::array<double, 9> values,
                                 std::array<double, 8> further = {})
{
    return SectionCut({1, ESection::User, shape, values, {}, further}, kLongest);
}

/// "y,z y,z" of a loop's corners, or "r" and its radius.
std::string CornersOf(const CCutLoop& loop)
{
    const auto number = [](double value) { return std::to_string(std::lround(value)); };
    std::string text = loop.isHole ? "hole" : "";
    for (const auto& [y, z] : loop.corners) {
        text += (text.empty() ? "" : " ") + number(y) + "," + number(z);
    }
    return loop.corners.empty() ? text + "r" + number(loop.radius) : text;
}

/// The loops of a cut of one part.
std::vector<std::string> LoopsOf(const std::optional<CSectionCut>& cut, std::size_t part = 0)
{
    std::vector<std::string> loops;
    if (cut && part < cut->parts.size()) {
        for (const CCutLoop& loop : cut->parts[part].loops) {
            loops.push_back(CornersOf(loop));
        }
    }
    return loops;
}

using CTexts = std::vector<std::string>;

TEST(SectionCut, RectangleIsHighAlongZ)
{
    const auto cut = CutOf("SB", {600, 300});
    EXPECT_EQ(LoopsOf(cut), CTexts{"-150,-300 150,-300 150,300 -150,300"});
    EXPECT_EQ(cut->width, 300);
    EXPECT_EQ(cut->height, 600);
    EXPECT_EQ(cut->parts[0].material, ECutMaterial::Own);
}

TEST(SectionCut, HHasTwoFlanges)
{
    EXPECT_EQ(LoopsOf(CutOf("H", {400, 200, 8, 12, 300, 20})),
              CTexts{"-150,-200 150,-200 150,-180 4,-180 4,188 100,188 100,200 -100,200 -100,188 -4,188 -4,-180 "
                     "-150,-180"});
    EXPECT_EQ(CutOf("H", {400, 200, 8, 12, 300, 20})->width, 300);
}

TEST(SectionCut, HWithoutALowerFlangeIsAT)
{
    EXPECT_EQ(LoopsOf(CutOf("H", {400, 200, 8, 12, 0, 0})),
              CTexts{"-4,-200 4,-200 4,-200 4,-200 4,188 100,188 100,200 -100,200 -100,188 -4,188 -4,-200 -4,-200"});
}

TEST(SectionCut, CirclesAndPipes)
{
    EXPECT_EQ(LoopsOf(CutOf("SR", {60})), CTexts{"r30"});
    EXPECT_EQ(LoopsOf(CutOf("P", {240, 10})), (CTexts{"r120", "holer110"}));
    EXPECT_EQ(LoopsOf(CutOf("P", {240, 120})), CTexts{"r120"});
}

TEST(SectionCut, ChannelHasItsWebOnTheLeft)
{
    EXPECT_EQ(LoopsOf(CutOf("C", {300, 90, 10, 14, 80, 12})),
              CTexts{"-45,-150 35,-150 35,-138 -35,-138 -35,136 45,136 45,150 -45,150"});
}

TEST(SectionCut, BoxHasAHole)
{
    EXPECT_EQ(LoopsOf(CutOf("B", {500, 400, 16, 20, 0, 30})),
              (CTexts{"-200,-250 200,-250 200,250 -200,250", "hole -184,230 184,230 184,-220 -184,-220"}));
    EXPECT_EQ(LoopsOf(CutOf("B", {500, 400, 200, 20, 0, 30})).size(), 1U);
}

TEST(SectionCut, TwoChannelsStandBackToBack)
{
    EXPECT_EQ(LoopsOf(CutOf("2C", {200, 70, 8, 12, 10})),
              (CTexts{"5,-100 75,-100 75,-88 13,-88 13,88 75,88 75,100 5,100",
                      "-5,100 -75,100 -75,88 -13,88 -13,-88 -75,-88 -75,-100 -5,-100"}));
    EXPECT_EQ(CutOf("2C", {200, 70, 8, 12, 10})->width, 150);
}

TEST(SectionCut, CrossIsAnHWithATOnBothFacesOfItsWeb)
{
    const auto cut = CutOf("H2T", {400, 200, 10, 16, 0, 190, 220, 12, 18});
    EXPECT_EQ(LoopsOf(cut), (CTexts{"-100,-200 100,-200 100,-184 5,-184 5,184 100,184 100,200 -100,200 -100,184 -5,184 "
                                    "-5,-184 -100,-184",
                                    "5,-6 177,-6 177,-110 195,-110 195,110 177,110 177,6 5,6",
                                    "-5,6 -177,6 -177,110 -195,110 -195,-110 -177,-110 -177,-6 -5,-6"}));
    EXPECT_EQ(cut->width, 390);
    EXPECT_EQ(cut->height, 400);
}

TEST(SectionCut, CompositeShapesHaveConcreteAndSteel)
{
    const auto pipe = CutOf("EPC", {}, {760, 0, 800, 20});
    ASSERT_EQ(pipe->parts.size(), 2U);
    EXPECT_EQ(pipe->parts[0].material, ECutMaterial::Concrete);
    EXPECT_EQ(pipe->parts[1].material, ECutMaterial::Steel);
    EXPECT_EQ(LoopsOf(pipe), CTexts{"r380"});
    EXPECT_EQ(LoopsOf(pipe, 1), (CTexts{"r400", "holer380"}));

    const auto encasedH = CutOf("RHB", {}, {700, 600, 400, 300, 14, 22});
    EXPECT_EQ(LoopsOf(encasedH), CTexts{"-300,-350 300,-350 300,350 -300,350"});
    EXPECT_EQ(LoopsOf(encasedH, 1), CTexts{"-150,-200 150,-200 150,-178 7,-178 7,178 150,178 150,200 -150,200 -150,178 "
                                           "-7,178 -7,-178 -150,-178"});

    const auto encasedBox = CutOf("RBC", {}, {700, 600, 400, 300, 14, 22});
    EXPECT_EQ(LoopsOf(encasedBox, 1),
              (CTexts{"-150,-200 150,-200 150,200 -150,200", "hole -136,178 136,178 136,-178 -136,-178"}));
}

TEST(SectionCut, SquareOfASectionByValues)
{
    EXPECT_EQ(LoopsOf(SectionCut({1, ESection::Value, "SB", {200, 200}, {}, {40000}}, kLongest)),
              CTexts{"-100,-100 100,-100 100,100 -100,100"});
}

TEST(SectionCut, RoundedDimensionsMayBeALittleTooLarge)
{
    EXPECT_TRUE(CutOf("EPC", {}, {760.001, 0, 760, 20}));
    EXPECT_TRUE(CutOf("P", {240, 120.0001}));
}

TEST(SectionCut, DimensionsThatMakeNoShapeHaveNone)
{
    EXPECT_FALSE(CutOf("SB", {0, 300}));
    EXPECT_FALSE(CutOf("SB", {-600, 300}));
    EXPECT_FALSE(CutOf("SB", {5001, 300}));
    EXPECT_FALSE(CutOf("SR", {0}));
    EXPECT_FALSE(CutOf("H", {400, 200, 8, 250, 200, 250}));
    EXPECT_FALSE(CutOf("H", {400, 200, 300, 13, 200, 13}));
    EXPECT_FALSE(CutOf("C", {300, 90, 100, 14, 90, 14}));
    EXPECT_FALSE(CutOf("P", {240, 130}));
    EXPECT_FALSE(CutOf("P", {240, -10}));
    EXPECT_FALSE(CutOf("B", {500, 400, 210, 20, 0, 30}));
    EXPECT_FALSE(CutOf("2C", {200, 70, 8, 12, -10}));
    EXPECT_FALSE(CutOf("H2T", {400, 200, 10, 16, 0, 10, 220, 12, 18}));
    EXPECT_FALSE(CutOf("EPC", {}, {900, 0, 800, 20}));
    EXPECT_FALSE(CutOf("RHB", {}, {300, 600, 400, 300, 14, 22}));
    EXPECT_FALSE(CutOf("RBC", {}, {700, 200, 400, 300, 14, 22}));
    EXPECT_FALSE(CutOf("XX", {600, 300}));
}

TEST(SectionCut, EveryShapeTakesAnyNumber)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const char* shape : {"SB", "H", "SR", "C", "B", "P", "2C", "H2T", "EPC", "RHB", "RBC"}) {
        for (const double bad : {std::nan(""), kInfinity, -kInfinity, 1e300, -1e300, 0.0}) {
            std::array<double, 9> values{};
            std::array<double, 8> further{};
            values.fill(bad);
            further.fill(bad);
            EXPECT_FALSE(CutOf(shape, values, further)) << shape << " " << bad;
        }
    }
}

}  // namespace
}  // namespace satwecvt
