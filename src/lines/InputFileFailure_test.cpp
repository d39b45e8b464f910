// Reads that the system refuses, and the counting of lines.

#include "lines/InputPieces_test.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>

namespace satwecvt {
namespace {

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
