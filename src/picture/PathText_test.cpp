#include "picture/PathText.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>

namespace satwecvt {
namespace {

std::string Millimetres(std::int32_t hundredths)
{
    std::string text;
    AppendMillimetres(text, hundredths);
    return text;
}

TEST(PaperPoint, LengthsHaveTwoDigitsBehindThePointAtMost)
{
    EXPECT_EQ(Millimetres(0), "0");
    EXPECT_EQ(Millimetres(1200), "12");
    EXPECT_EQ(Millimetres(1250), "12.5");
    EXPECT_EQ(Millimetres(-1205), "-12.05");
    EXPECT_EQ(Millimetres(5), ".05");
    EXPECT_EQ(Millimetres(-50), "-.5");
}

TEST(PaperPoint, LengthsAreRoundedAndHaveALimit)
{
    EXPECT_EQ(PaperLength(12.344), 1234);
    EXPECT_EQ(PaperLength(12.346), 1235);
    EXPECT_EQ(PaperLength(-12.346), -1235);
    for (const double far : {1e300, std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(PaperLength(far), 100'000'000);
        EXPECT_EQ(PaperLength(-far), -100'000'000);
    }
    EXPECT_EQ(PaperLength(std::nan("")), -100'000'000);
}

TEST(PathText, TellsStepsByTheirDifferences)
{
    CPathText path;
    path.AddPolygon(std::array<CPaperPoint, 5>{{{100, 250}, {400, 250}, {400, 50}, {350, 25}, {375, 75}}});
    EXPECT_EQ(path.Text(), "M1 2.5h3v-2l-.5-.25l.25 .5z");
}

TEST(PathText, LeavesOutStepsOfNoLength)
{
    CPathText path;
    path.AddPolyline(std::array<CPaperPoint, 3>{{{100, 100}, {100, 100}, {200, 100}}});
    EXPECT_EQ(path.Text(), "M1 1h1");
}

TEST(PathText, StartsEachLineWhereItIs)
{
    CPathText path;
    path.AddLine({100, 100}, {200, 200});
    path.AddLine({-100, -100}, {0, 0});
    EXPECT_EQ(path.Text(), "M1 1l1 1M-1-1l1 1");
}

TEST(PathText, ACircleIsTwoArcs)
{
    CPathText path;
    path.AddCircle({1000, 1000}, 150);
    path.AddCircle({1000, 1000}, 100, false);
    EXPECT_EQ(path.Text(), "M8.5 10a1.5 1.5 0 1 1 3 0a1.5 1.5 0 1 1-3 0zM9 10a1 1 0 1 0 2 0a1 1 0 1 0-2 0z");
}

}  // namespace
}  // namespace satwecvt
