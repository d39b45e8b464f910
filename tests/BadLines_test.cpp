// Lines that are too short or too long, and bytes that have a meaning of their own.

#include "support/CheckedConversion.h"
#include "support/SmallBuilding.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {
namespace {

struct CRecordLine {
    const char* name;
    const char* line;
    std::size_t needed;
};

void PrintTo(const CRecordLine& record, std::ostream* out)
{
    *out << record.name;
}

class ShortLine : public testing::TestWithParam<CRecordLine> {};

std::string RecordName(const testing::TestParamInfo<CRecordLine>& record)
{
    return record.param.name;
}

/// The first numbers of a line.
std::string FirstNumbers(std::string_view line, std::size_t count)
{
    std::size_t size = 0;
    for (; count > 0; --count) {
        size = std::min(line.find(' ', size + 1), line.size());
    }
    return std::string(line.substr(0, size));
}

/// The small building's structure file with one whole line replaced.
std::string StructureWith(std::string_view line, std::string_view by)
{
    std::vector<std::string> lines = SplitLines(SmallStructure());
    for (std::string& candidate : lines) {
        if (std::string_view(candidate).substr(0, candidate.size() - 1) == line) {
            candidate = by;
            candidate += '\n';
        }
    }
    return JoinLines(lines);
}

TEST_P(ShortLine, FailsBelowTheNumbersThatItsRecordNeeds)
{
    const std::string line = GetParam().line;
    for (std::size_t count = 0; count < GetParam().needed; ++count) {
        SCOPED_TRACE(FirstNumbers(line, count));
        ExpectNotRead(Convert(StructureWith(line, FirstNumbers(line, count)), SmallLoads()));
    }
    ExpectWritten(Convert(StructureWith(line, FirstNumbers(line, GetParam().needed)), SmallLoads()));
}

INSTANTIATE_TEST_SUITE_P(
    All, ShortLine,
    testing::Values(
        CRecordLine{"SectionLineA", "2 2 5 0 8 400 200 13 200 13", 10},
        CRecordLine{"SupportNode", "2 102 0 6000 0 0", 6}, CRecordLine{"StoryNode", "4 114 0 0 5000 3600", 6},
        CRecordLine{"Beam", "1 111 112 1 2 0 0", 7}, CRecordLine{"BeamWithOffsets", "2 -113 114 2 4 0 15", 7},
        CRecordLine{"BeamOffsets", "0 100 0 0 100 0", 6}, CRecordLine{"Column", "1 101 111 4 0 0 0", 7},
        CRecordLine{"SplitColumn", "2 -102 112 3 4 0 0", 7}, CRecordLine{"SplitNode", "0 103", 2},
        CRecordLine{"Brace", "2 102 113 1 0 0 0", 7}, CRecordLine{"Wall", "2 2 1 0 0 250 1000 900 800 700", 10},
        CRecordLine{"WallPoints", "121 122 113 114", 4}, CRecordLine{"WallPointsOnASecondLine", " 104 103 104", 3},
        CRecordLine{"Plate", "2 4 0 120 121 122 123 9", 8}),
    RecordName);

TEST(ShortLine, OfSectionLineBFails)
{
    for (const char* line : {"", "0", "0 0", "0 0 0"}) {
        SCOPED_TRACE(line);
        ExpectNotRead(Convert(StructureWith("0 0 0 0 NOTE=column", line), ""));
    }
}

TEST(ShortLine, OfALoadHasZeros)
{
    const std::string line = "4 999 12 1 1 2 3";
    for (std::size_t count = 1; count <= 7; ++count) {
        SCOPED_TRACE(FirstNumbers(line, count));
        std::string padded = FirstNumbers(line, count);
        for (std::size_t i = count; i < 10; ++i) {
            padded += " 0";
        }
        const std::string shortText = Replaced(SmallLoads(), line, FirstNumbers(line, count));
        ExpectSameFiles(Convert(SmallStructure(), Replaced(SmallLoads(), line, padded)),
                        Convert(SmallStructure(), shortText));
    }
}

constexpr std::size_t kPiece = 499;

std::int32_t PieceCount(std::size_t length)
{
    return static_cast<std::int32_t>((length + kPiece - 1) / kPiece);
}

class LongLine : public testing::TestWithParam<std::size_t> {};

TEST_P(LongLine, OfACommentIsSkippedPieceByPiece)
{
    const std::string comment = std::string(GetParam() - 1, 'C') + "\n";
    const CAnswer expected = Convert(SmallStructure(), SmallLoads());
    const CAnswer answer = Convert(comment + SmallStructure(), comment + SmallLoads());
    ExpectSameFiles(expected, answer);
    const std::int32_t more = 2 * PieceCount(GetParam());
    EXPECT_EQ(expected.screen.totals[0] + more, answer.screen.totals[0]);
    EXPECT_EQ(expected.screen.steps + more, answer.screen.steps);
}

TEST_P(LongLine, OfDataAndBlanksHoldsItsNumbers)
{
    const CAnswer expected = Convert(SmallStructure(), SmallLoads());
    const std::vector<std::string> lines = SplitLines(SmallStructure());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        SCOPED_TRACE(lines[i]);
        // A repeat has to equal the line that it repeats. Behind blanks, a line end within a plate is a number of its
        // own.
        const bool mayBePadded =
            !lines[i].ends_with("=grades\n") && !lines[i + 1 < lines.size() ? i + 1 : i].starts_with(" 113 114");
        if (mayBePadded) {
            std::vector<std::string> padded = lines;
            padded[i].insert(padded[i].size() - 1, GetParam() - padded[i].size(), ' ');
            const CAnswer answer = Convert(JoinLines(padded), SmallLoads());
            ExpectSameFiles(expected, answer);
            EXPECT_EQ(expected.screen.totals[0] + PieceCount(GetParam()) - 1, answer.screen.totals[0]);
        }
    }
}

TEST_P(LongLine, OfACommentHasDataBehindItsFirstPiece)
{
    std::string comment = "C\n";
    comment.insert(1, GetParam() + kPiece, '7');
    ExpectNotRead(Convert(comment + SmallStructure(), SmallLoads()));
}

INSTANTIATE_TEST_SUITE_P(All, LongLine, testing::Values(499, 500, 501, 998, 999, 100'000));

TEST(LineEnds, OfCrLfGiveTheSameBytesAsLf)
{
    const CAnswer expected = Convert(SmallStructure(), SmallLoads());
    const CAnswer answer = Convert(Replaced(SmallStructure(), "\n", "\r\n"), Replaced(SmallLoads(), "\n", "\r\n"));
    ExpectSameFiles(expected, answer);
    EXPECT_EQ(expected.screen.lines, answer.screen.lines);
    EXPECT_EQ(expected.screen.totals, answer.screen.totals);
}

TEST(ControlZ, EndsTheStructureWhereverItStands)
{
    std::string text;
    for (const std::string& line : SplitLines(SmallStructure())) {
        SCOPED_TRACE("before: " + line);
        std::string ended = SmallStructure();
        ended.insert(text.size(), 1, '\x1A');
        const CAnswer expected = Convert(text, SmallLoads());
        const CAnswer answer = Convert(ended, SmallLoads());
        ExpectNotRead(answer);
        EXPECT_EQ(expected.screen.lines, answer.screen.lines);
        EXPECT_EQ(expected.screen.totals, answer.screen.totals);
        text += line;
    }
    ExpectSameFiles(Convert(text, SmallLoads()), Convert(text + "\x1A garbage \x1A\n", SmallLoads()));
}

TEST(ControlZ, EndsTheLoadsWhereverItStands)
{
    std::string text;
    for (const std::string& line : SplitLines(SmallLoads())) {
        SCOPED_TRACE("before: " + line);
        std::string ended = SmallLoads();
        ended.insert(text.size(), 1, '\x1A');
        const CAnswer expected = Convert(SmallStructure(), text);
        const CAnswer answer = Convert(SmallStructure(), ended);
        ExpectSameFiles(expected, answer);
        EXPECT_EQ(expected.screen.lines, answer.screen.lines);
        EXPECT_EQ(expected.screen.totals, answer.screen.totals);
        text += line;
    }
}

TEST(Nul, EndsTheTextOfItsLineAlone)
{
    using namespace std::string_literals;
    const std::string rest = " \0 7 7 = , junk\n"s;  // the blank closes the last number, as the newline did
    const CAnswer expected = Convert(SmallStructure(), SmallLoads());
    const CAnswer answer = Convert(Replaced(SmallStructure(), "\n", rest), Replaced(SmallLoads(), "\n", rest));
    ExpectSameFiles(expected, answer);
    EXPECT_EQ(expected.screen.lines, answer.screen.lines);
    EXPECT_EQ(expected.screen.totals, answer.screen.totals);
}

TEST(FinalNewline, MayBeABlankButNotMissing)
{
    const CAnswer expected = Convert(SmallStructure(), SmallLoads());
    const std::string structure = SmallStructure().substr(0, SmallStructure().size() - 1);
    const std::string loads = SmallLoads().substr(0, SmallLoads().size() - 1);
    ExpectSameFiles(expected, Convert(structure + " ", loads + " "));
    ExpectNotRead(Convert(structure, loads));
    const std::string withoutLastValue = Replaced(SmallLoads(), "4 999 12 1 1 2 3\n", "4 999 12 1 1 2\n");
    ExpectSameFiles(Convert(SmallStructure(), withoutLastValue), Convert(SmallStructure(), loads));
}

}  // namespace
}  // namespace satwecvt
