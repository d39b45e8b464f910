#include "ui/console/ProgressLine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <thread>

namespace satwecvt {
namespace {

constexpr auto kInterval = std::chrono::milliseconds(50);

/// What a piece of code writes to the terminal.
template <class Code>
std::string Drawn(Code code)
{
    testing::internal::CaptureStderr();
    code();
    return testing::internal::GetCapturedStderr();
}

TEST(ProgressText, ShowsPercentLineAndStage)
{
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    const struct {
        std::int32_t line;
        std::int32_t total;
        const char* expected;
    } table[] = {
        {420, 1000, " 42 %  line 420 of 1000  Read Data File"},
        {0, 1000, "  0 %  line 0 of 1000  Read Data File"},
        {9, 100, "  9 %  line 9 of 100  Read Data File"},
        {999, 1000, " 99 %  line 999 of 1000  Read Data File"},
        {1000, 1000, "100 %  line 1000 of 1000  Read Data File"},
        {1, 3, " 33 %  line 1 of 3  Read Data File"},
        {kMost - 1, kMost, " 99 %  line 2147483646 of 2147483647  Read Data File"},
    };
    for (const auto& row : table) {
        EXPECT_EQ(row.expected, ProgressText(row.line, row.total, "Read Data File"));
    }
}

TEST(ProgressText, StaysBetween0And100Percent)
{
    EXPECT_EQ("100 %  line 12 of 10  x", ProgressText(12, 10, "x"));
    EXPECT_EQ("  0 %  line -5 of 10  x", ProgressText(-5, 10, "x"));
}

TEST(ProgressText, ATotalOf0LinesIsDone)
{
    EXPECT_EQ("100 %  line 0 of 0  x", ProgressText(0, 0, "x"));
}

TEST(ProgressLine, TheFirstUpdateDrawsAndTheEndTakesTheLineOff)
{
    const std::string text = ProgressText(1, 2, "stage");
    EXPECT_EQ("\r" + text + "\r" + std::string(text.size(), ' ') + "\r", Drawn([] {
                  CProgressLine line;
                  line.SetTotalLines(2);
                  line.UpdateLine(1, "stage");
              }));
}

TEST(ProgressLine, ALineThatWasNeverDrawnLeavesTheTerminalAlone)
{
    EXPECT_EQ("", Drawn([] { CProgressLine().Clear(); }));
}

TEST(ProgressLine, ASecondClearDrawsNothing)
{
    CProgressLine line;
    Drawn([&] {
        line.UpdateLine(1, "stage");
        line.Clear();
    });
    EXPECT_EQ("", Drawn([&] { line.Clear(); }));
}

TEST(ProgressLine, AShorterTextBlanksTheRestOfALongerOne)
{
    CProgressLine line;
    line.SetTotalLines(2);
    Drawn([&] { line.UpdateLine(1, "a long stage"); });
    std::this_thread::sleep_for(kInterval * 2);
    EXPECT_EQ("\r 50 %  line 1 of 2  short       ", Drawn([&] { line.UpdateLine(1, "short"); }));
    Drawn([&] { line.Clear(); });
}

TEST(ProgressLine, AStageKeepsTheLinesOfTheReading)
{
    CProgressLine line;
    line.SetTotalLines(4);
    Drawn([&] {
        line.UpdateLine(4, "Read Data File");
        line.Clear();
    });
    std::this_thread::sleep_for(kInterval * 2);
    EXPECT_EQ("\r100 %  line 4 of 4  Write Data File : Node",
              Drawn([&] { line.UpdateStage("Write Data File : Node"); }));
    line.SetTotalLines(10);
    std::this_thread::sleep_for(kInterval * 2);
    EXPECT_EQ("\r  0 %  line 0 of 10  Read Data File       ", Drawn([&] { line.UpdateStage("Read Data File"); }));
    Drawn([&] { line.Clear(); });
}

TEST(ProgressLine, IsDrawnAtMost20TimesASecond)
{
    const auto start = std::chrono::steady_clock::now();
    const std::string drawn = Drawn([] {
        CProgressLine line;
        for (std::int32_t i = 0; i < 10000; ++i) {
            line.UpdateLine(i, "stage");
        }
    });
    const auto most = (std::chrono::steady_clock::now() - start) / kInterval + 1;
    const auto drawings = std::count(drawn.begin(), drawn.end(), '%');
    EXPECT_GE(drawings, 1);
    EXPECT_LE(drawings, most);
}

}  // namespace
}  // namespace satwecvt
