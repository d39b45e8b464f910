// Where and why a read stopped, as a program tells it to its user: line, block, reason.

#include "support/CheckedConversion.h"
#include "support/SmallBuilding.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

namespace satwecvt {
namespace {

struct CExpectedStop {
    ESource source;
    std::int64_t line;
    std::string block;
    std::string reason;
};

void ExpectStop(const CExpectedStop& expected, const CAnswer& answer)
{
    ASSERT_TRUE(answer.conversion.report.failure.has_value());
    const CFailure& failure = *answer.conversion.report.failure;
    EXPECT_EQ(expected.source, failure.place.source);
    EXPECT_EQ(expected.line, failure.place.line);
    EXPECT_EQ(expected.block, failure.block);
    EXPECT_EQ(expected.reason, failure.reason);
}

/// The last line behind which a file may end in a block.
struct CBlockEnd {
    std::int64_t lastLine;
    const char* block;
};

// A block is begun as soon as the one before it is complete. Story line 3 is complete when a line differs from it.
constexpr CBlockEnd kStructureBlocks[] = {
    {1, "file header"},
    {9, "section definitions"},
    {13, "model-level nodes"},
    {15, "story line 1 of story block 1"},
    {16, "story line 2 of story block 1"},
    {19, "story line 3 of story block 1"},
    {23, "node lines of story block 1"},
    {26, "beam lines of story block 1"},
    {29, "column lines of story block 1"},
    {31, "brace lines of story block 1"},
    {36, "wall lines of story block 1"},
    {39, "plate lines of story block 1"},
    {42, "story line 1 of story block 2"},
    {43, "story line 2 of story block 2"},
    {45, "story line 3 of story block 2"},
    {49, "node lines of story block 2"},
    {50, "beam lines of story block 2"},
    {51, "column lines of story block 2"},
    {53, "wall lines of story block 2"},
    {55, "plate lines of story block 2"},
};

TEST(ReadStop, OfAStructureFileThatEndsTooEarlyNamesTheBlock)
{
    std::int64_t lines = 0;
    for (const CBlockEnd& end : kStructureBlocks) {
        for (; lines <= end.lastLine; ++lines) {
            SCOPED_TRACE(lines);
            const CAnswer answer = Convert(FirstLines(SmallStructure(), lines), SmallLoads());
            ExpectNotRead(answer);
            ExpectStop({ESource::StructureFile, lines, end.block, "the file ends here"}, answer);
        }
    }
    EXPECT_EQ(SmallStructure(), FirstLines(SmallStructure(), lines));
    EXPECT_EQ("", FailureReason(Convert(SmallStructure(), SmallLoads()).conversion));
}

void ExpectEndsEarly(const CAnswer& answer, std::int64_t line, const std::string& text)
{
    const std::optional<CFinding> early = EndsEarly(answer.conversion);
    ASSERT_TRUE(early.has_value());
    EXPECT_EQ(ESeverity::Loss, early->severity);
    EXPECT_EQ(ESource::LoadFile, early->place.source);
    EXPECT_EQ(line, early->place.line);
    EXPECT_EQ(text, FindingText(*early));
    EXPECT_FALSE(answer.conversion.report.failure.has_value());
}

/// What the end of the load file behind a line is told as. Lines 1, 11 and 12 are no data lines.
struct CLoadEnd {
    std::int64_t line;
    const char* text;
};

constexpr CLoadEnd kLoadEnds[] = {
    {0, "in block 1 of 2: 0 loads read, 0 announced"},    {1, "in block 1 of 2: 0 loads read, 0 announced"},
    {2, "in block 1 of 2: 0 loads read, 8 announced"},    {3, "in block 1 of 2: 1 load read, 8 announced"},
    {9, "in block 1 of 2: 7 loads read, 8 announced"},    {10, "in block 2 of 2: 8 loads read, 8 announced"},
    {12, "in block 2 of 2: 8 loads read, 8 announced"},   {13, "in block 2 of 2: 8 loads read, 12 announced"},
    {16, "in block 2 of 2: 11 loads read, 12 announced"},
};

TEST(ReadStop, OfALoadFileThatEndsTooEarlyTellsHowFarItCame)
{
    for (const CLoadEnd& end : kLoadEnds) {
        SCOPED_TRACE(end.line);
        const CAnswer answer = Convert(SmallStructure(), FirstLines(SmallLoads(), end.line));
        ExpectWritten(answer);
        ExpectEndsEarly(answer, end.line, "the file ends " + std::string(end.text) + " in the blocks that were read");
    }
    EXPECT_FALSE(EndsEarly(Convert(SmallStructure(), FirstLines(SmallLoads(), 17)).conversion).has_value());
}

TEST(ReadStop, CountsTheLinesOfALoadFileBehindAStructureFileWithoutALastNewline)
{
    std::string structure = SmallStructure();
    structure.back() = ' ';
    const CAnswer answer = Convert(structure, FirstLines(SmallLoads(), 5));
    ExpectWritten(answer);
    ExpectEndsEarly(answer, 5, "the file ends in block 1 of 2: 3 loads read, 8 announced in the blocks that were read");
}

struct CBadLine {
    const char* line;
    const char* by;
    std::int64_t number;
    const char* block;
    const char* reason;
};

constexpr CBadLine kBadLines[] = {
    {"\n4 104 0 0 5000 0\n", "\n4 104 0 0 5000\n", 14, "model-level nodes", "a node needs 6 numbers, this line has 5"},
    {"\n2 102 113 1 0 0 0\n", "\n2 102 113 1 0 0\n", 32, "brace lines of story block 1",
     "a brace needs 7 numbers, this line has 6"},
    {"1000 900 800 700", "1000 900 800", 35, "wall lines of story block 1",
     "the first line of a wall needs 10 numbers, this line has 9"},
    {"\n113 114 103\n", "\n113 114 103 1 2 3 4\n", 36, "wall lines of story block 1",
     "the wall's point list needs 6 numbers and has 7"},
    {"\n 104 103 104\n", "\n 104 103\n", 37, "wall lines of story block 1",
     "the wall's point list needs 6 numbers and has 5"},
    {"\n2 2 1 0 0 250", "\n2 -1 2 0 0 250", 36, "wall lines of story block 1",
     "the wall's point list needs 2 numbers and has 3"},
    {"\n2 5 0 150 111 112\n", "\n  2,5,0,150,111\nx=3\n", 40, "plate lines of story block 1",
     "a plate without numbers"},
};

TEST(ReadStop, AtABadLineNamesItAndTheReason)
{
    for (const CBadLine& bad : kBadLines) {
        SCOPED_TRACE(bad.by);
        const CAnswer answer = Convert(Replaced(SmallStructure(), bad.line, bad.by), SmallLoads());
        ExpectNotRead(answer);
        ExpectStop({ESource::StructureFile, bad.number, bad.block, bad.reason}, answer);
    }
}

TEST(ReadStop, OfTwoBadLinesInABlockEachHasItsOwnReason)
{
    // The first waits for the end of its block; the second is too short to tell whether a line follows, and fails.
    const std::string structure =
        Replaced(SmallStructure(), "\n1 111 112 1 2 0 0\n2 -113 114 2 4 0 15\n", "\n1 111 112 1 2 0\n2 -113\n");
    const CAnswer answer = Convert(structure, SmallLoads());
    ExpectNotRead(answer);
    ExpectStop({ESource::StructureFile, 26, "beam lines of story block 1", "a beam needs 7 numbers, this line has 2"},
               answer);
}

TEST(ReadStop, AtAFileThatCannotBeOpenedHasNoLine)
{
    CMemoryFiles files;
    files.files = {{"structure.sat", SmallStructure()}};
    CAnswer answer;
    answer.conversion = ConvertMemoryFiles(answer.screen, files);
    ExpectStop({ESource::LoadFile, 0, "", "No such file or directory"}, answer);
}

}  // namespace
}  // namespace satwecvt
