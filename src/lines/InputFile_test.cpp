#include "lines/InputPieces_test.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <string>

namespace satwecvt {
namespace {

using namespace std::string_literals;

TEST(InputFile, LinesKeepTheirNewline)
{
    EXPECT_EQ((CPieces{{"1 2\n", 1}, {"\n", 2}, {"3\n", 3}}), PiecesOf("1 2\n\n3\n"));
}

TEST(InputFile, AFinalLineMayHaveNoNewline)
{
    EXPECT_EQ((CPieces{{"1\n", 1}, {"2", 2}}), PiecesOf("1\n2"));
}

TEST(InputFile, CarriageReturnAndLineFeedAreOneNewline)
{
    EXPECT_EQ((CPieces{{"1\n", 1}, {"\n", 2}, {"2", 3}}), PiecesOf("1\r\n\r\n2"));
}

TEST(InputFile, ALoneCarriageReturnStays)
{
    EXPECT_EQ((CPieces{{"1\r2\r\n", 1}, {"\r", 2}}), PiecesOf("1\r2\r\r\n\r"));
}

TEST(InputFile, ControlZEndsTheFile)
{
    EXPECT_EQ((CPieces{{"1\n", 1}, {"2", 2}}), PiecesOf("1\n2\x1A 3\n4\n"));
    EXPECT_EQ(CPieces{}, PiecesOf("\x1A\n1\n"));
    EXPECT_EQ((CPieces{{"1\r", 1}}), PiecesOf("1\r\x1A\n"));
}

TEST(InputFile, ANulEndsTheTextOfItsLine)
{
    EXPECT_EQ((CPieces{{"1 ", 1}, {"3\n", 2}, {"", 3}, {"4\n", 4}}), PiecesOf("1 \0 2\n3\n\0\n4\n"s));
}

TEST(InputFile, ALineOf600CharactersComesInPiecesOf499And101)
{
    const std::string line = std::string(599, 'x') + "\n";
    EXPECT_EQ((CPieces{{line.substr(0, 499), 1}, {line.substr(499), 1}, {"next\n", 2}}), PiecesOf(line + "next\n"));
}

TEST(InputFile, ANulShortensOnlyItsOwnPieceOfALongLine)
{
    const std::string line = "1\0"s + std::string(497, 'x') + "2\n";
    EXPECT_EQ((CPieces{{"1", 1}, {"2\n", 1}}), PiecesOf(line));
}

TEST(InputFile, TheNewlineCountsAmongThe499Characters)
{
    const std::string text(498, 'x');
    EXPECT_EQ((CPieces{{text + "\n", 1}, {"y", 2}}), PiecesOf(text + "\ny"));
    EXPECT_EQ((CPieces{{text + "\n", 1}, {"y", 2}}), PiecesOf(text + "\r\ny"));
    EXPECT_EQ((CPieces{{text + "x", 1}, {"\n", 1}, {"y", 2}}), PiecesOf(text + "x\ny"));
    EXPECT_EQ((CPieces{{text + "x", 1}, {"\n", 1}, {"y", 2}}), PiecesOf(text + "x\r\ny"));
    EXPECT_EQ((CPieces{{text + "\r", 1}, {"\n", 1}, {"y", 2}}), PiecesOf(text + "\r\r\ny"));
    EXPECT_EQ((CPieces{{text + "\r", 1}, {"y", 1}}), PiecesOf(text + "\ry"));
}

TEST(InputFile, CarriageReturnAndLineFeedMayStandAnywhereAroundThePieceLimit)
{
    for (std::size_t position = 490; position < 1010; ++position) {
        const std::string bytes = std::string(position, 'x') + "\r\n" + std::string(600, 'y') + "\r\nend";
        ASSERT_EQ(ExpectedPieces(bytes), PiecesOf(bytes)) << position;
    }
}

TEST(InputFile, CarriageReturnAndLineFeedMayStandAnywhereAroundTheBlockBorder)
{
    std::string lines;
    while (lines.size() < 65'000) {
        lines += "a line of some characters\r\n";
    }
    for (std::size_t position = 65'530; position < 65'542; ++position) {
        const std::string first = lines + std::string(position - lines.size(), 'x') + "\r\n";
        for (const std::string& bytes : {first, first + "y", first + "\n", first + lines}) {
            ASSERT_EQ(ExpectedPieces(bytes), PiecesOf(bytes)) << position;
        }
    }
}

TEST(InputFile, ThePieceLimitMayStandAnywhereAroundTheBlockBorder)
{
    for (std::size_t start = 65'536 - 505; start < 65'536 - 495; ++start) {
        for (std::size_t length = 496; length < 502; ++length) {
            const std::string bytes = std::string(start, '\n') + std::string(length, 'x') + "\r\nend";
            ASSERT_EQ(ExpectedPieces(bytes), PiecesOf(bytes)) << length << " characters at " << start;
        }
    }
}

/// A file of two lines, of which the first has been read.
class InputFileInUse : public testing::Test {
protected:
    InputFileInUse()
    {
        system.files["input"] = "1\n2\n";
        EXPECT_EQ(1, input.Open("input"));
        EXPECT_EQ("1\n", Read());
    }

    /// The next piece; empty at the end.
    std::string Read()
    {
        std::span<char> piece;
        return input.ReadLine(piece) != 0 ? std::string(piece.begin(), piece.end()) : std::string();
    }

    CMemoryFiles system;
    CInputFile input{system};
};

TEST_F(InputFileInUse, AStepBackHandsOutTheLastPieceOnceMore)
{
    input.StepBack();
    EXPECT_EQ("1\n", Read());
    EXPECT_EQ(1, input.LineNumber());
    EXPECT_EQ("2\n", Read());
    input.StepBack();
    EXPECT_EQ("2\n", Read());
    EXPECT_EQ("", Read());
}

TEST_F(InputFileInUse, AnotherFileStartsAnew)
{
    system.files["other"] = "3\n";
    input.StepBack();
    ASSERT_EQ(1, input.Open("other"));
    EXPECT_EQ(0, input.LineNumber());
    EXPECT_EQ("3\n", Read());
    EXPECT_EQ(1, input.LineNumber());
    EXPECT_EQ(1, system.OpenCount());
}

TEST_F(InputFileInUse, AClosedFileHasNoMoreLines)
{
    for (int times = 0; times < 2; ++times) {
        input.Close();
        EXPECT_EQ(0, system.OpenCount());
        EXPECT_EQ("", Read());
    }
}

TEST(InputFile, TheFileIsClosedWithItsObject)
{
    CMemoryFiles system;
    system.files["input"] = "1\n";
    EXPECT_EQ(1U, ReadPieces(system).size());
    EXPECT_EQ(1, CountLines(system, "input"));
    EXPECT_EQ(0, system.OpenCount());
}

TEST(InputFile, AMissingFileDoesNotOpen)
{
    CInputFile input(CFileSystem::System());
    EXPECT_EQ(0, input.Open("no such file"));
    EXPECT_EQ(std::strerror(ENOENT), input.OpenCause());
    std::span<char> piece;
    EXPECT_EQ(0, input.ReadLine(piece));
}

TEST(InputFile, AFolderDoesNotOpen)
{
    CInputFile input(CFileSystem::System());
    EXPECT_EQ(0, input.Open("."));
    EXPECT_FALSE(input.OpenCause().empty());
}

}  // namespace
}  // namespace satwecvt
