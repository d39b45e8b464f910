// Where and why a read stopped, as a program tells it to its user: line, block, reason.

#include "support/CheckedConversion.h"
#include "support/SmallBuilding.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace satwecvt {
namespace {

void ExpectStop(const CReadStop& expected, const CAnswer& answer)
{
    ASSERT_TRUE(answer.conversion.report.readStop.has_value());
    const CReadStop& stop = *answer.conversion.report.readStop;
    EXPECT_EQ(expected.path, stop.path);
    EXPECT_EQ(expected.line, stop.line);
    EXPECT_EQ(expected.block, stop.block);
    EXPECT_EQ(expected.reason, stop.reason);
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
            ExpectStop({"structure.sat", lines, end.block, "the file ends here"}, answer);
        }
    }
    EXPECT_EQ(SmallStructure(), FirstLines(SmallStructure(), lines));
    EXPECT_FALSE(Convert(SmallStructure(), SmallLoads()).conversion.report.readStop.has_value());
}

constexpr CBlockEnd kLoadBlocks[] = {
    {1, "count line of story block 1"},
    {9, "load lines of story block 1"},
    {12, "count line of story block 2"},
    {16, "load lines of story block 2"},
};

TEST(ReadStop, OfALoadFileThatEndsTooEarlyNamesTheBlock)
{
    std::int64_t lines = 0;
    for (const CBlockEnd& end : kLoadBlocks) {
        for (; lines <= end.lastLine; ++lines) {
            SCOPED_TRACE(lines);
            const CAnswer answer = Convert(SmallStructure(), FirstLines(SmallLoads(), lines));
            ExpectWritten(answer);
            ExpectStop({"load.sat", lines, end.block, "the file ends here"}, answer);
        }
    }
    EXPECT_EQ(SmallLoads(), FirstLines(SmallLoads(), lines));
}

TEST(ReadStop, CountsTheLinesOfALoadFileBehindAStructureFileWithoutALastNewline)
{
    std::string structure = SmallStructure();
    structure.back() = ' ';
    const CAnswer answer = Convert(structure, FirstLines(SmallLoads(), 5));
    ExpectWritten(answer);
    ExpectStop({"load.sat", 5, "load lines of story block 1", "the file ends here"}, answer);
}

struct CBadLine {
    const char* line;
    const char* by;
    std::int64_t number;
    const char* block;
    const char* reason;
};

constexpr CBadLine kBadLines[] = {
    {"\n4 104 0 0 5000 0\n", "\n4 104 0 0 5000\n", 14, "model-level nodes", "too few numbers"},
    {"\n2 102 113 1 0 0 0\n", "\n2 102 113 1 0 0\n", 32, "brace lines of story block 1", "too few numbers"},
    {"1000 900 800 700", "1000 900 800", 35, "wall lines of story block 1", "too few numbers"},
    {"\n113 114 103\n", "\n113 114 103 1 2 3 4\n", 36, "wall lines of story block 1",
     "the wall's point list does not have 6 numbers"},
    {"\n 104 103 104\n", "\n 104 103\n", 37, "wall lines of story block 1",
     "the wall's point list does not have 6 numbers"},
    {"\n2 2 1 0 0 250", "\n2 -1 2 0 0 250", 36, "wall lines of story block 1",
     "the wall's point list does not have 2 numbers"},
    {"\n2 5 0 150 111 112\n", "\n  2,5,0,150,111\nx=3\n", 40, "plate lines of story block 1",
     "a plate without numbers"},
};

TEST(ReadStop, AtABadLineNamesItAndTheReason)
{
    for (const CBadLine& bad : kBadLines) {
        SCOPED_TRACE(bad.by);
        const CAnswer answer = Convert(Replaced(SmallStructure(), bad.line, bad.by), SmallLoads());
        ExpectNotRead(answer);
        ExpectStop({"structure.sat", bad.number, bad.block, bad.reason}, answer);
    }
}

TEST(ReadStop, AtAFileThatCannotBeOpenedHasNoLine)
{
    CMemoryFiles files;
    files.files = {{"structure.sat", SmallStructure()}};
    CAnswer answer;
    answer.conversion = ConvertMemoryFiles(answer.screen, files);
    ExpectStop({"load.sat", 0, "", "No such file or directory"}, answer);
}

}  // namespace
}  // namespace satwecvt
