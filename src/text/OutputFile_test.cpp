#include "text/OutputFile.h"

#include "file/MemoryFiles_test.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>

namespace satwecvt {
namespace {

/// A system that fails where it is told to.
class CFailingFiles : public CMemoryFiles {
public:
    bool refusesToOpen = false;
    std::size_t mostPerWrite = std::string::npos;
    int failAtWrite = 0;  // counted from 1; 0: none fails
    bool refusesToClose = false;

    int writes = 0;
    int closes = 0;

    int OpenForWriting(const char* path) override
    {
        errno = EACCES;
        return refusesToOpen ? -1 : CMemoryFiles::OpenForWriting(path);
    }

    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override
    {
        if (++writes == failAtWrite) {
            errno = EIO;
            return -1;
        }
        return CMemoryFiles::Write(file, bytes, std::min(size, mostPerWrite));
    }

    int Close(int file) noexcept override
    {
        ++closes;
        CMemoryFiles::Close(file);
        errno = EIO;
        return refusesToClose ? -1 : 0;
    }
};

void Put(COutputFile& file, std::string_view text)
{
    char* at = file.Reserve(text.size());
    file.Commit(at + text.copy(at, text.size()));
}

/// Many pieces of up to 32 KiB, the most that can be reserved.
std::string PutManyPieces(COutputFile& file)
{
    std::mt19937 random(3);
    std::string expected;
    for (int i = 0; i < 60; ++i) {
        const std::string piece(random() % (32 * 1024 + 1), static_cast<char>('a' + i % 26));
        Put(file, piece);
        expected += piece;
    }
    return expected;
}

template <class Call>
void ExpectFileError(int cause, Call call)
{
    try {
        call();
        ADD_FAILURE() << "no failure";
    } catch (const CFileError& error) {
        EXPECT_EQ("model.vkm", error.Path());
        EXPECT_EQ(std::strerror(cause), error.Cause());
    }
}

class OutputFile : public testing::Test {
protected:
    std::string& Bytes() { return system.files["model.vkm"]; }

    CFailingFiles system;
};

TEST_F(OutputFile, BytesGoOutAsTheyAreGiven)
{
    COutputFile file(system);
    ASSERT_EQ(1, file.Open("model.vkm"));
    EXPECT_TRUE(file.IsOpen());
    Put(file, "a\n");
    Put(file, "");
    Put(file, "b\r\n\x1A");
    file.Close();
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ("a\nb\r\n\x1A", Bytes());
    EXPECT_EQ(1, system.closes);
}

TEST_F(OutputFile, AnOlderFileIsReplaced)
{
    Bytes() = "an older and longer text";
    COutputFile file(system);
    ASSERT_EQ(1, file.Open("model.vkm"));
    Put(file, "new");
    file.Close();
    EXPECT_EQ("new", Bytes());
}

TEST_F(OutputFile, ManyPiecesGoOutInFewWrites)
{
    COutputFile file(system);
    ASSERT_EQ(1, file.Open("model.vkm"));
    const std::string expected = PutManyPieces(file);
    file.Close();
    EXPECT_TRUE(expected == Bytes());
    EXPECT_LE(system.writes, 60);
}

TEST_F(OutputFile, MayCommitLessThanItReserved)
{
    COutputFile file(system);
    ASSERT_EQ(1, file.Open("model.vkm"));
    char* at = file.Reserve(100);
    *at++ = 'x';
    file.Commit(at);
    file.Reserve(100);
    Put(file, "y");
    file.Close();
    EXPECT_EQ("xy", Bytes());
}

TEST_F(OutputFile, AWriteThatTakesOneByteAtATimeLosesNothing)
{
    system.mostPerWrite = 1;
    COutputFile file(system);
    ASSERT_EQ(1, file.Open("model.vkm"));
    const std::string expected = PutManyPieces(file);
    file.Close();
    EXPECT_TRUE(expected == Bytes());
}

TEST_F(OutputFile, AFileThatCannotBeOpenedFailsAtItsFirstByte)
{
    system.refusesToOpen = true;
    COutputFile file(system);
    EXPECT_EQ(0, file.Open("model.vkm"));
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ("model.vkm", file.Error().Path());
    EXPECT_EQ(std::strerror(EACCES), file.Error().Cause());
    ExpectFileError(EACCES, [&] { file.Reserve(1); });
    EXPECT_NO_THROW(file.Close());
    EXPECT_EQ(0, system.closes);
}

TEST_F(OutputFile, ARefusedFileIsOneThatCouldNotBeOpened)
{
    COutputFile file(system);
    file.Refuse("model.vkm", "it is an input file");
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ("model.vkm", file.Error().Path());
    EXPECT_EQ("it is an input file", file.Error().Cause());
    EXPECT_THROW(file.Reserve(1), CFileError);
    EXPECT_NO_THROW(file.Close());
    EXPECT_TRUE(system.files.empty());
}

TEST_F(OutputFile, AWriteThatFailsIsAFileError)
{
    for (const int failing : {1, 2, 5}) {
        system.failAtWrite = failing;
        system.writes = 0;
        COutputFile file(system);
        ASSERT_EQ(1, file.Open("model.vkm"));
        ExpectFileError(EIO, [&] { PutManyPieces(file); });
        EXPECT_EQ(failing, system.writes);
    }
    EXPECT_EQ(0, system.OpenCount());
}

TEST_F(OutputFile, AWriteThatFailsAtTheCloseIsAFileError)
{
    system.failAtWrite = 1;
    COutputFile file(system);
    ASSERT_EQ(1, file.Open("model.vkm"));
    Put(file, "text");
    ExpectFileError(EIO, [&] { file.Close(); });
}

TEST_F(OutputFile, ADeviceThatTakesNothingMoreIsAFileError)
{
    system.mostPerWrite = 0;
    COutputFile file(system);
    ASSERT_EQ(1, file.Open("model.vkm"));
    Put(file, "text");
    ExpectFileError(ENOSPC, [&] { file.Close(); });
}

TEST_F(OutputFile, ACloseThatFailsIsAFileErrorAndHappensOnce)
{
    system.refusesToClose = true;
    {
        COutputFile file(system);
        ASSERT_EQ(1, file.Open("model.vkm"));
        Put(file, "text");
        ExpectFileError(EIO, [&] { file.Close(); });
        EXPECT_FALSE(file.IsOpen());
        EXPECT_NO_THROW(file.Close());
    }
    EXPECT_EQ(1, system.closes);
}

TEST_F(OutputFile, NothingIsWrittenAfterAbandon)
{
    COutputFile file(system);
    ASSERT_EQ(1, file.Open("model.vkm"));
    Put(file, "text");
    file.Abandon();
    EXPECT_FALSE(file.IsOpen());
    EXPECT_THROW(file.Reserve(1), CFileError);
    file.Close();
    file.Abandon();
    EXPECT_EQ("", Bytes());
    EXPECT_EQ(0, system.writes);
    EXPECT_EQ(1, system.closes);
}

TEST_F(OutputFile, WhatWasWrittenBeforeAbandonStays)
{
    COutputFile file(system);
    ASSERT_EQ(1, file.Open("model.vkm"));
    const std::string expected = PutManyPieces(file);
    file.Abandon();
    EXPECT_FALSE(Bytes().empty());
    EXPECT_LT(Bytes().size(), expected.size());
    EXPECT_EQ(expected.substr(0, Bytes().size()), Bytes());
}

TEST_F(OutputFile, AFileThatNobodyClosedIsAbandoned)
{
    {
        COutputFile file(system);
        ASSERT_EQ(1, file.Open("model.vkm"));
        Put(file, "text");
    }
    EXPECT_EQ("", Bytes());
    EXPECT_EQ(0, system.OpenCount());
}

}  // namespace
}  // namespace satwecvt
