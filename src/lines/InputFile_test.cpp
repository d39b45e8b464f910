#include "lines/InputFile.h"

#include "file/MemoryFiles_test.h"

#include <gtest/gtest.h>

#include <cstring>
#include <ostream>
#include <random>

namespace satwecvt {
namespace {

using namespace std::string_literals;

/// One piece as `ReadLine` hands it out, and the line that it belongs to.
struct CPiece {
    std::string text;
    std::int64_t line;

    bool operator==(const CPiece&) const = default;
};

std::ostream& operator<<(std::ostream& out, const CPiece& piece)
{
    return out << piece.line << ": " << testing::PrintToString(piece.text);
}

using CPieces = std::vector<CPiece>;

/// A Windows text stream and the reads of 499 characters from it, one byte at a time.
CPieces ExpectedPieces(const std::string& bytes)
{
    CPieces pieces;
    std::string characters;
    std::int64_t line = 1;
    const auto endPiece = [&] {
        pieces.push_back({characters.substr(0, characters.find('\0')), line});
        line += characters.back() == '\n' ? 1 : 0;
        characters.clear();
    };
    for (std::size_t i = 0; i < bytes.size() && bytes[i] != '\x1A'; ++i) {
        if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') {
            continue;
        }
        characters += bytes[i];
        if (characters.size() == 499 || bytes[i] == '\n') {
            endPiece();
        }
    }
    if (!characters.empty()) {
        endPiece();
    }
    return pieces;
}

CPieces ReadPieces(CFileSystem& system)
{
    CInputFile input(system);
    EXPECT_EQ(1, input.Open("input"));
    CPieces pieces;
    for (std::span<char> piece; input.ReadLine(piece) != 0;) {
        pieces.push_back({{piece.begin(), piece.end()}, input.LineNumber()});
    }
    return pieces;
}

CPieces PiecesOf(const std::string& bytes)
{
    CMemoryFiles system;
    system.files["input"] = bytes;
    return ReadPieces(system);
}

/// A system that hands out a few bytes at a time.
class CDribblingFiles : public CMemoryFiles {
public:
    std::ptrdiff_t Read(int file, char* buffer, std::size_t size) override
    {
        return CMemoryFiles::Read(file, buffer, std::min<std::size_t>(size, 1 + random() % 7));
    }

private:
    std::mt19937 random{11};
};

/// A system whose reads fail behind the first ones.
class CFailingReads : public CMemoryFiles {
public:
    int readsLeft = 1;

    std::ptrdiff_t Read(int file, char* buffer, std::size_t size) override
    {
        if (readsLeft-- > 0) {
            return CMemoryFiles::Read(file, buffer, std::min<std::size_t>(size, 1000));
        }
        errno = EIO;
        return -1;
    }
};

/// Reads a file to its end, now and then stepping back, and compares it with the pieces that it should have.
void ExpectPieces(const CPieces& expected, CInputFile& input, std::mt19937& random)
{
    std::span<char> piece;
    for (const CPiece& next : expected) {
        ASSERT_EQ(1, input.ReadLine(piece));
        ASSERT_EQ(next, (CPiece{{piece.begin(), piece.end()}, input.LineNumber()}));
        if (random() % 4 == 0) {
            input.StepBack();
            ASSERT_EQ(1, input.ReadLine(piece));
            ASSERT_EQ(next, (CPiece{{piece.begin(), piece.end()}, input.LineNumber()}));
        }
    }
    EXPECT_EQ(0, input.ReadLine(piece));
    EXPECT_EQ(0, input.ReadLine(piece));
}

/// Random bytes with lines of about `lineLength` characters; an end-of-file byte comes once in `fileLength` bytes.
std::string RandomBytes(std::mt19937& random, std::size_t size, unsigned lineLength, unsigned fileLength)
{
    std::string bytes(size, 'a');
    for (char& byte : bytes) {
        if (random() % lineLength == 0) {
            byte = "\r\n\n\r\0"[random() % 5];
        } else if (random() % fileLength == 0) {
            byte = '\x1A';
        }
    }
    for (std::size_t i = 0; i + 1 < size; ++i) {  // half of the CRs get their LF
        if (bytes[i] == '\r' && random() % 2 == 0) {
            bytes[i + 1] = '\n';
        }
    }
    return bytes;
}

template <class Files>
void ExpectRandomFilesAsByteByByte(std::size_t longest)
{
    std::mt19937 random(4711);
    for (const unsigned lineLength : {2U, 10U, 400U, 1000U, 5000U}) {
        for (int round = 0; round < 12; ++round) {
            Files system;
            const std::string bytes = RandomBytes(random, random() % longest, lineLength, 400'000);
            system.files["input"] = bytes;
            const CPieces expected = ExpectedPieces(bytes);
            EXPECT_EQ(static_cast<std::int32_t>(expected.size()), CountLines(system, "input"));
            CInputFile input(system);
            ASSERT_EQ(1, input.Open("input"));
            ExpectPieces(expected, input, random);
            ASSERT_FALSE(testing::Test::HasFatalFailure());
        }
    }
}

TEST(InputFile, RandomFilesAreCutAsByteByByte)
{
    ExpectRandomFilesAsByteByByte<CMemoryFiles>(250'000);
}

TEST(InputFile, RandomFilesInShortReadsAreCutAsByteByByte)
{
    ExpectRandomFilesAsByteByByte<CDribblingFiles>(150'000);
}

TEST(InputFile, ManyShortRandomFilesAreCutAsByteByByte)
{
    std::mt19937 random(5);
    for (int round = 0; round < 20'000; ++round) {
        const std::string bytes = RandomBytes(random, random() % 24, 2, 12);
        ASSERT_EQ(ExpectedPieces(bytes), PiecesOf(bytes)) << testing::PrintToString(bytes);
    }
}

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

TEST(InputFile, AStepBackHandsOutTheLastPieceOnceMore)
{
    CMemoryFiles system;
    system.files["input"] = "1\n2\n";
    CInputFile input(system);
    std::span<char> piece;
    ASSERT_EQ(1, input.Open("input"));
    ASSERT_EQ(1, input.ReadLine(piece));
    input.StepBack();
    ASSERT_EQ(1, input.ReadLine(piece));
    EXPECT_EQ("1\n", std::string(piece.begin(), piece.end()));
    EXPECT_EQ(1, input.LineNumber());
    ASSERT_EQ(1, input.ReadLine(piece));
    EXPECT_EQ("2\n", std::string(piece.begin(), piece.end()));
    input.StepBack();
    EXPECT_EQ(1, input.ReadLine(piece));
    EXPECT_EQ(0, input.ReadLine(piece));
}

TEST(InputFile, AnotherFileStartsAnew)
{
    CMemoryFiles system;
    system.files["input"] = "1\n2\n";
    system.files["other"] = "3\n";
    CInputFile input(system);
    std::span<char> piece;
    ASSERT_EQ(1, input.Open("input"));
    ASSERT_EQ(1, input.ReadLine(piece));
    input.StepBack();
    ASSERT_EQ(1, input.Open("other"));
    EXPECT_EQ(0, input.LineNumber());
    ASSERT_EQ(1, input.ReadLine(piece));
    EXPECT_EQ("3\n", std::string(piece.begin(), piece.end()));
    EXPECT_EQ(1, input.LineNumber());
    EXPECT_EQ(1, system.OpenCount());
}

TEST(InputFile, AClosedFileHasNoMoreLines)
{
    CMemoryFiles system;
    system.files["input"] = "1\n2\n";
    CInputFile input(system);
    std::span<char> piece;
    ASSERT_EQ(1, input.Open("input"));
    ASSERT_EQ(1, input.ReadLine(piece));
    input.Close();
    EXPECT_EQ(0, system.OpenCount());
    EXPECT_EQ(0, input.ReadLine(piece));
    input.Close();
    EXPECT_EQ(0, system.OpenCount());
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

TEST(InputFile, AReadThatTheSystemRefusesIsAFileError)
{
    for (const int reads : {0, 1, 70}) {
        CFailingReads system;
        system.readsLeft = reads;
        system.files["input"] = std::string(200'000, 'x');
        try {
            ReadPieces(system);
            ADD_FAILURE() << "no failure after " << reads << " reads";
        } catch (const CFileError& error) {
            EXPECT_EQ("input", error.Path());
            EXPECT_EQ(std::strerror(EIO), error.Cause());
        }
        EXPECT_EQ(0, system.OpenCount());
    }
}

TEST(InputFile, WholePiecesInFrontOfARefusedReadAreHandedOut)
{
    CFailingReads system;
    system.readsLeft = 1;
    system.files["input"] = "1\n2\r\n3";
    CInputFile input(system);
    std::span<char> piece;
    ASSERT_EQ(1, input.Open("input"));
    for (const char* expected : {"1\n", "2\n"}) {
        ASSERT_EQ(1, input.ReadLine(piece));
        EXPECT_EQ(expected, std::string(piece.begin(), piece.end()));
    }
    EXPECT_THROW(static_cast<void>(input.ReadLine(piece)), CFileError);  // nobody knows how line 3 ends
    EXPECT_EQ(2, input.LineNumber());
    input.StepBack();
    ASSERT_EQ(1, input.ReadLine(piece));
    EXPECT_EQ("2\n", std::string(piece.begin(), piece.end()));
    input.Close();
    EXPECT_EQ(0, input.ReadLine(piece));
}

TEST(InputFile, AFullPieceIsWholeWhenItsNextByteIsKnown)
{
    for (const std::size_t size : {499U, 500U}) {
        CFailingReads system;
        system.readsLeft = 1;
        system.files["input"] = std::string(size, 'x');
        CInputFile input(system);
        std::span<char> piece;
        ASSERT_EQ(1, input.Open("input"));
        if (size == 500U) {
            ASSERT_EQ(1, input.ReadLine(piece));
            EXPECT_EQ(std::string(499, 'x'), std::string(piece.begin(), piece.end()));
        }
        EXPECT_THROW(static_cast<void>(input.ReadLine(piece)), CFileError)
            << size;  // a CR may have to go with the LF behind it
    }
}

TEST(CountLines, CountsPieces)
{
    CMemoryFiles system;
    const std::pair<std::string, std::int32_t> table[] = {
        {"", 0}, {"\x1A", 0}, {"\n", 1}, {"1", 1}, {"1\n2", 2}, {"c comment\r\n\r\n", 2}, {std::string(600, 'x'), 2},
    };
    for (const auto& [bytes, expected] : table) {
        system.files["input"] = bytes;
        EXPECT_EQ(expected, CountLines(system, "input")) << testing::PrintToString(bytes);
    }
}

TEST(CountLines, AFileThatCannotBeOpenedHasNone)
{
    EXPECT_EQ(0, CountLines(CFileSystem::System(), "no such file"));
    EXPECT_EQ(0, CountLines(CFileSystem::System(), "."));
}

TEST(CountLines, AReadThatTheSystemRefusesEndsTheCount)
{
    CFailingReads system;
    system.files["input"] = std::string(200'000, '\n');
    EXPECT_NO_THROW(CountLines(system, "input"));
    EXPECT_EQ(0, system.OpenCount());
}

}  // namespace
}  // namespace satwecvt
