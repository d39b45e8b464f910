// Counts that promise more or less than a file holds: the answer comes at the end of the file at the latest, and no
// memory is taken for records that never come.

#include "support/CheckedConversion.h"
#include "support/CountedAllocations.h"
#include "support/SmallBuilding.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace satwecvt {
namespace {

/// More than any block that the few lines of these files ask for, in bytes.
constexpr std::size_t kMostMemory = 1U << 20U;

/// One story with two records of every kind. The node numbers are far above the counts, so that a line which a wrong
/// count assigns to another kind never fits there.
struct CCounts {
    std::string header[3] = {"1", "2", "2"};
    std::string story[6] = {"2", "2", "2", "2", "2", "2"};

    std::string Text() const
    {
        const std::string counts =
            story[0] + ' ' + story[1] + ' ' + story[2] + ' ' + story[3] + ' ' + story[4] + ' ' + story[5];
        return header[0] + ' ' + header[1] + ' ' + header[2] + " 0 0\n" + R"(1 1 6 0 300 600 0 0 0 0
0 0 0 0
2 1 6 0 500 500 0 0 0 0
0 0 0 0
1 501 0 0 0 0
2 502 0 6000 0 0
1 1 0
1
3600 30 40 30 25 16
)" + counts + R"(
1 511 0 0 0 3600
2 512 0 6000 0 3600
1 511 512 1 0 0 0
2 512 511 1 0 0 0
1 501 511 2 0 0 0
2 502 512 2 0 0 0
1 501 512 2 0 0 0
2 502 511 2 0 0 0
1 2 0 0 0 200 0 0 0 0
511 512 501 502
2 2 0 0 0 200 0 0 0 0
511 512 501 502
1 3 0 120 501 502 511
2 3 0 120 501 502 512
)";
    }
};

class Counts : public testing::TestWithParam<const char*> {};

/// The answer comes at the end of the file at the latest, and no memory is taken for records that never come.
void ExpectCountRefused(const CCounts& counts)
{
    const std::string text = counts.Text();
    const CCountedAllocations allocations;
    const CAnswer answer = Convert(text, "0\n");
    EXPECT_LT(CCountedAllocations::Largest(), kMostMemory);
    ExpectNotRead(answer);
    EXPECT_LE(answer.screen.steps,
              LineCount(text) + 2);  // story line 4 is read twice, the end of the file is asked for
}

TEST(Counts, AsTheyAreGiveAModel)
{
    ExpectWritten(Convert(CCounts().Text(), "0\n"));
}

TEST_P(Counts, BeyondTheRecordsFailInTheHeader)
{
    for (std::size_t number = 0; number < 3; ++number) {
        SCOPED_TRACE("header number " + std::to_string(number + 1));
        CCounts counts;
        counts.header[number] = GetParam();
        ExpectCountRefused(counts);
    }
}

TEST_P(Counts, BeyondTheRecordsFailInAStory)
{
    for (std::size_t number = 0; number < 6; ++number) {
        SCOPED_TRACE("story line 4, number " + std::to_string(number + 1));
        CCounts counts;
        counts.story[number] = GetParam();
        ExpectCountRefused(counts);
    }
}

INSTANTIATE_TEST_SUITE_P(TooLarge, Counts,
                         testing::Values("3", "7", "2147483647", "2147483648", "1e20", "1e999", "inf"));

class CountsBelowOne : public testing::TestWithParam<const char*> {};

TEST_P(CountsBelowOne, WithoutSectionsOrNodesTakeTheRestOfTheFile)
{
    for (std::size_t number = 1; number < 3; ++number) {
        SCOPED_TRACE("header number " + std::to_string(number + 1));
        CCounts counts;
        counts.header[number] = GetParam();
        ExpectCountRefused(counts);
    }
}

TEST_P(CountsBelowOne, WithoutStoriesEndTheStructureAtTheSupports)
{
    CCounts counts;
    counts.header[0] = GetParam();
    const CAnswer answer = Convert(counts.Text(), "1\n1 1 12 0 1 1 1\n");
    ExpectWritten(answer);
    EXPECT_EQ(7, answer.screen.steps);  // header, sections, support nodes
    EXPECT_EQ(0, answer.conversion.report.read.stories);
    EXPECT_EQ(0, LoadCount(answer));
}

INSTANTIATE_TEST_SUITE_P(All, CountsBelowOne, testing::Values("0", "-1", "-2", "-2147483648", "-1e20", "-inf", "nan"));

TEST(StoryCounts, BelowZeroNeverEndTheirBlock)
{
    for (const char* count : {"-1", "-2", "-2147483648", "-1e20", "-inf"}) {
        for (std::size_t number = 0; number < 6; ++number) {
            SCOPED_TRACE(std::string(count) + " as number " + std::to_string(number + 1));
            CCounts counts;
            counts.story[number] = count;
            ExpectCountRefused(counts);
        }
    }
}

TEST(StoryCounts, OfZeroLeaveTheirLinesToTheNextKind)
{
    for (std::size_t number = 0; number < 5; ++number) {
        SCOPED_TRACE("number " + std::to_string(number + 1));
        CCounts counts;
        counts.story[number] = "0";
        ExpectCountRefused(counts);
    }
    CCounts noPlates;
    noPlates.story[5] = "0";  // nothing behind the last story is read
    ExpectWritten(Convert(noPlates.Text(), "0\n"));
}

TEST(LoadCounts, OfAnySizeKeepTheLoads)
{
    const CAnswer expected = Convert(CCounts().Text(), "1\n1 511 12 0 7 8 9\n");
    for (const char* count : {"1", "2", "2147483647", "1e20", "inf"}) {
        SCOPED_TRACE(count);
        const CCountedAllocations allocations;
        const CAnswer answer = Convert(CCounts().Text(), std::string(count) + "\n1 511 12 0 7 8 9\n");
        EXPECT_LT(CCountedAllocations::Largest(), kMostMemory);
        ExpectSameFiles(expected, answer);
    }
    for (const char* count : {"0", "-1", "-1e20", "nan", "none"}) {
        SCOPED_TRACE(count);
        const CAnswer answer = Convert(CCounts().Text(), std::string(count) + "\n1 511 12 0 7 8 9\n");
        ExpectSameFiles(Convert(CCounts().Text(), ""), answer);
    }
}

TEST(PlateCorners, BeyondTheFileFailAtItsEnd)
{
    for (const char* corners : {"4", "5", "1000", "2147483647", "1e20", "inf"}) {
        SCOPED_TRACE(corners);
        const std::string text =
            Replaced(CCounts().Text(), "2 3 0 120 501 502 512\n", "2 " + std::string(corners) + " 0 120 501 502 512\n");
        const CCountedAllocations allocations;
        ExpectNotRead(Convert(text, "0\n"));
        EXPECT_LT(CCountedAllocations::Largest(), kMostMemory);
    }
}

TEST(WallRows, OfHugeOrNegativeLengthFail)
{
    for (const char* rows : {"3 0", "0 3", "2147483647 2147483647", "1073741824 1073741826", "1e20 1e20", "-1 3",
                             "3 -1", "-1e20 1e20", "-2 0", "inf -inf"}) {
        SCOPED_TRACE(rows);
        const std::string text = Replaced(CCounts().Text(), "2 2 0 0 0 200", "2 " + std::string(rows) + " 0 0 200");
        const CCountedAllocations allocations;
        ExpectNotRead(Convert(text, "0\n"));
        EXPECT_LT(CCountedAllocations::Largest(), kMostMemory);
    }
}

}  // namespace
}  // namespace satwecvt
