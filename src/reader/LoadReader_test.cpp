#include "reader/LoadReader.h"

#include "file/MemoryFiles_test.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

/// A window that nobody cancels in, or somebody at the n-th step.
class CStepCounter : public CProgressWindow {
public:
    int cancelAtStep = 0;
    int steps = 0;

    void SetTotalLines(std::int32_t /*total*/) override {}
    int StepLine(std::int32_t /*line*/) override { return ++steps == cancelAtStep ? 0 : 1; }
    void SetStageText(std::string_view /*text*/) override {}
};

/// The reading of one load file by a model of three stories.
struct CLoadReading {
    explicit CLoadReading(const std::string& bytes, int cancelAtStep = 0)
    {
        CMemoryFiles system;
        system.files["load"] = bytes;
        CStepCounter progress;
        progress.cancelAtStep = cancelAtStep;
        CDataLines lines(system, progress, state, nullptr);
        EXPECT_EQ(1, lines.Open(ESource::LoadFile, "load", 100));
        CBlockReader reader(lines, ESource::LoadFile);
        model.storyCount = 3;
        CLoadReader loadReader(reader, model);
        answer = loadReader.Read();
        endsEarly = loadReader.EndsEarly("");
        model.loads.Visit([&](const T_SATWE_STLD_D& load) { loads.push_back(load); });
    }

    CReadState state;
    CSatweModel model;
    std::vector<T_SATWE_STLD_D> loads;
    CFinding endsEarly;
    int answer = 0;
};

struct CExpectedLoad {
    std::int32_t storyId;
    std::int32_t memberId;
    std::int32_t loadType;
    std::int32_t loadCase;
    std::array<double, 4> value;
    std::int32_t line;
};

void ExpectLoads(const std::vector<CExpectedLoad>& expected, const std::vector<T_SATWE_STLD_D>& loads)
{
    ASSERT_EQ(expected.size(), loads.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(expected[i].storyId, loads[i].storyId);
        EXPECT_EQ(expected[i].memberId, loads[i].memberId);
        EXPECT_EQ(expected[i].loadType, static_cast<std::int32_t>(loads[i].loadType));
        EXPECT_EQ(expected[i].loadCase, loads[i].loadCase);
        EXPECT_EQ(expected[i].value, loads[i].value);
        EXPECT_EQ(expected[i].line, loads[i].line);
    }
}

TEST(LoadReader, EqualLinesOfTwoStoriesAreTwoLoads)
{
    const CLoadReading reading("1\n1 5 1 0 10 2\n1\n1 5 1 0 10 2\n0\n");
    EXPECT_EQ(1, reading.answer);
    ExpectLoads({{1, 5, 1, 0, {10, 2, 0, 0}, 2}, {2, 5, 1, 0, {10, 2, 0, 0}, 4}}, reading.loads);
}

TEST(LoadReader, AFileWithoutLoadLinesGivesNoLoad)
{
    const CLoadReading reading("0\n0\n0\n");
    EXPECT_EQ(1, reading.answer);
    EXPECT_TRUE(reading.loads.empty());
    EXPECT_EQ(3, reading.state.lineCounter);
}

TEST(LoadReader, BlocksThatAreMissingHaveNoLoad)
{
    const CLoadReading reading("0\n");
    EXPECT_EQ(0, reading.answer);
    EXPECT_TRUE(reading.loads.empty());
    EXPECT_FALSE(reading.state.cancelled);
    EXPECT_EQ("the file ends in block 2 of 3: 0 loads read, 0 announced in the blocks that were read",
              FindingText(reading.endsEarly));
}

TEST(LoadReader, ALineMayHaveFewerColumns)
{
    const CLoadReading reading("0\n2\n7 12 1 0 -25.5 3.0\n1 2.9 -1.7\n0\n");
    ExpectLoads({{2, 12, 1, 0, {-25.5, 3, 0, 0}, 3}, {2, 2, -1, 0, {0, 0, 0, 0}, 4}}, reading.loads);
}

TEST(LoadReader, ACountBelow1HasNoLines)
{
    const CLoadReading reading("-3\n0.9\n1 and more\n1 5 11 1 4\n");
    EXPECT_EQ(1, reading.answer);
    ExpectLoads({{3, 5, 11, 1, {4, 0, 0, 0}, 4}}, reading.loads);
}

TEST(LoadReader, BlankLinesAndCommentsAreNoLoads)
{
    const CLoadReading reading("\nc loads\n2\n\n1 5 1 0 10 2\nC\n2 6 1 0 10 2\n \n0\n0\n");
    EXPECT_EQ(2U, reading.loads.size());
    EXPECT_EQ(10, reading.state.lineCounter);
}

TEST(LoadReader, AnEarlyEndKeepsTheLoadsReadSoFar)
{
    const CLoadReading reading("3\n1 5 1 0 10 2\n2 6 1 0 10 2\n");
    EXPECT_EQ(0, reading.answer);
    EXPECT_EQ(2U, reading.loads.size());
    EXPECT_FALSE(reading.state.cancelled);
}

TEST(LoadReader, ACancelKeepsTheLoadsReadSoFar)
{
    const CLoadReading reading("3\n1 5 1 0 10 2\n2 6 1 0 10 2\n3 7 1 0 10 2\n0\n0\n", 4);
    EXPECT_EQ(0, reading.answer);
    EXPECT_EQ(2U, reading.loads.size());
    EXPECT_TRUE(reading.state.cancelled);
    EXPECT_EQ(3, reading.state.lineCounter);
}

}  // namespace
}  // namespace satwecvt
