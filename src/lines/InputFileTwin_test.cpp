// Random files, in one read and in many, against what their bytes tell.

#include "lines/InputPieces_test.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace satwecvt {
namespace {

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

}  // namespace
}  // namespace satwecvt
