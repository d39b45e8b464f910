#include "picture/PlanLabels.h"

#include "picture/SvgParts_test.h"

#include <gtest/gtest.h>

#include <string>

namespace satwecvt {
namespace {

constexpr CPlanPaper kPaper{"A4", 297, 210};

std::string TextOf(const CPlanLabels& labels)
{
    CSvgText svg;
    labels.AddTo(svg);
    return svg.Take();
}

// Letters stand .79 mm below their middle.

TEST(PlanLabels, TextsLieAlongTheirMember)
{
    CPlanLabels labels(kPaper);
    labels.Add("300x600", {{5000, 5000}});
    labels.Add("400x700", {{9000, 9000}}, {0, -1});
    labels.Add("500x800", {{15000, 9000}}, {0.8, -0.6});
    const std::string svg = TextOf(labels);
    EXPECT_NE(svg.find(R"(<text x="50" y="50.8">300x600</text>)"), std::string::npos);
    EXPECT_NE(svg.find("<g transform=\"rotate(-90)\">\n<text x=\"-90\" y=\"90.8\">400x700</text>"), std::string::npos);
    EXPECT_NE(svg.find("<text transform=\"matrix(0.8 -0.6 0.6 0.8 150.5 90.6)\">500x800</text>"), std::string::npos);
}

TEST(PlanLabels, AreReadFromBelowOrFromTheRight)
{
    const auto readable = [](double x, double y) {
        const CPaperDirection direction = CPlanLabels::Readable({x, y});
        return std::pair(direction.x, direction.y);
    };
    EXPECT_EQ(readable(1, 0), std::pair(1.0, 0.0));
    EXPECT_EQ(readable(-1, 0).first, 1.0);
    EXPECT_EQ(readable(0, 1), std::pair(-0.0, -1.0));
    EXPECT_EQ(readable(0, -1), std::pair(0.0, -1.0));
    EXPECT_EQ(readable(0.6, 0.8), std::pair(0.6, 0.8));
    EXPECT_EQ(readable(-0.6, 0.8), std::pair(0.6, -0.8));
    EXPECT_EQ(readable(0.001, 1), std::pair(-0.001, -1.0));
}

TEST(PlanLabels, StandWhereThereIsRoomOrNowhere)
{
    CPlanLabels labels(kPaper);
    labels.Add("first", {{5000, 5000}});
    labels.Add("second", {{5000, 5050}, {5000, 6000}});
    labels.Add("third", {{5000, 5050}, {5000, 6050}, {29600, 6000}, {5000, -100}});
    const std::string svg = TextOf(labels);
    EXPECT_NE(svg.find("y=\"60.8\">second<"), std::string::npos);
    EXPECT_EQ(CountIn(svg, "<text"), 2U);
}

TEST(PlanLabels, StayOutOfWhatIsBlocked)
{
    CPlanLabels labels(kPaper);
    labels.Block({5000, 5000}, {5000, 15000}, 200);
    labels.Add("left", {{4000, 10000}});
    labels.Add("on", {{5000, 10000}});
    labels.Add("beyond", {{5000, 15500}});
    const std::string svg = TextOf(labels);
    EXPECT_EQ(CountIn(svg, "<text"), 2U);
    EXPECT_EQ(svg.find(">on<"), std::string::npos);
}

TEST(PlanLabels, WithoutATextThereIsNoGroup)
{
    EXPECT_EQ(TextOf(CPlanLabels(kPaper)), "");
}

}  // namespace
}  // namespace satwecvt
