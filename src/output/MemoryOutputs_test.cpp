#include "output/MemoryOutputs.h"

#include "output/OutputFolder_test.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <limits>
#include <new>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

class MemoryOutputs : public COutputFolder {
protected:
    CMemoryOutputs outputs{CFileSystem::System()};
};

TEST_F(MemoryOutputs, HoldWhatIsWrittenAndTouchNoFile)
{
    Create("tower.vkm", "old model");
    ASSERT_TRUE(WriteOutput(outputs, Path("satwecvt.msg"), "log"));
    ASSERT_TRUE(WriteOutput(outputs, Path("tower.vkm"), "model"));
    EXPECT_EQ("log", outputs.Bytes(Path("satwecvt.msg")));
    EXPECT_EQ("model", outputs.Bytes(Path("tower.vkm")));
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
    EXPECT_EQ("old model", BytesOf("tower.vkm"));
}

TEST_F(MemoryOutputs, HaveNoBytesForAPathThatWasNotOpened)
{
    Create("tower.vkm", "old model");
    EXPECT_EQ(std::nullopt, outputs.Bytes(Path("tower.vkm")));
    ASSERT_TRUE(WriteOutput(outputs, Path("tower.vkm"), ""));
    EXPECT_EQ("", outputs.Bytes(Path("tower.vkm")));
}

TEST_F(MemoryOutputs, TakeTwoAtATime)
{
    const int log = outputs.OpenForWriting("log");
    const int model = outputs.OpenForWriting("model");
    EXPECT_NE(log, model);
    EXPECT_EQ(3, outputs.Write(log, "abc", 3));
    EXPECT_EQ(3, outputs.Write(model, "123", 3));
    EXPECT_EQ(1, outputs.Write(log, "d", 1));
    EXPECT_EQ(0, outputs.Close(log));
    EXPECT_EQ(0, outputs.Close(model));
    EXPECT_EQ("abcd", outputs.Bytes("log"));
    EXPECT_EQ("123", outputs.Bytes("model"));
}

TEST_F(MemoryOutputs, ThatAreOpenedAgainStartAfresh)
{
    ASSERT_TRUE(WriteOutput(outputs, Path("tower.vkm"), "first"));
    ASSERT_TRUE(WriteOutput(outputs, Path("./tower.vkm"), "second"));
    EXPECT_EQ(std::nullopt, outputs.Bytes(Path("tower.vkm")));
    EXPECT_EQ("second", outputs.Bytes(Path("./tower.vkm")));
}

TEST_F(MemoryOutputs, AreReadBackWhateverPathLeadsThere)
{
    Create("tower.vkm", "old model");
    fs::create_directory(folder / "sub");
    EXPECT_EQ("old model", ReadFile(outputs, Path("tower.vkm")));
    ASSERT_TRUE(WriteOutput(outputs, Path("tower.vkm"), "a new model"));
    EXPECT_EQ("a new model", ReadFile(outputs, Path("tower.vkm")));
    EXPECT_EQ("a new model", ReadFile(outputs, Path("sub/../tower.vkm")));
    ASSERT_TRUE(WriteOutput(outputs, Path("tower.vkm"), ""));
    EXPECT_EQ("", ReadFile(outputs, Path("tower.vkm")));
}

TEST_F(MemoryOutputs, AreReadByTwoAtATimeWhileTheyGrow)
{
    const int model = outputs.OpenForWriting("model");
    const int first = outputs.OpenForReading("model");
    const int second = outputs.OpenForReading("model");
    char bytes[4] = "";
    EXPECT_EQ(0, outputs.Read(first, bytes, 3));
    EXPECT_EQ(5, outputs.Write(model, "model", 5));
    EXPECT_EQ(3, outputs.Read(first, bytes, 3));
    EXPECT_STREQ("mod", bytes);
    EXPECT_EQ(3, outputs.Read(second, bytes, 3));
    EXPECT_STREQ("mod", bytes);
    EXPECT_EQ(2, outputs.Read(first, bytes, 3));
    EXPECT_STREQ("eld", bytes);
    EXPECT_EQ(0, outputs.Read(first, bytes, 3));
    for (const int file : {first, second, model}) {
        EXPECT_EQ(0, outputs.Close(file));
    }
}

TEST_F(MemoryOutputs, ThatStartAfreshAreAtTheirEndForThoseWhoHaveReadFurther)
{
    ASSERT_TRUE(WriteOutput(outputs, "model", "a long model"));
    const int reader = outputs.OpenForReading("model");
    char bytes[12] = "";
    EXPECT_EQ(12, outputs.Read(reader, bytes, sizeof bytes));
    ASSERT_TRUE(WriteOutput(outputs, "model", "short"));
    EXPECT_EQ(0, outputs.Read(reader, bytes, sizeof bytes));
    EXPECT_EQ(0, outputs.Close(reader));
}

TEST_F(MemoryOutputs, LeaveOtherFilesToTheMachine)
{
    Create("tower.sat", "structure");
    ASSERT_TRUE(WriteOutput(outputs, Path("tower.vkm"), "model"));
    EXPECT_EQ("structure", ReadFile(outputs, Path("tower.sat")));
    EXPECT_EQ(-1, outputs.OpenForReading(Path("missing").c_str()));
    EXPECT_EQ(ENOENT, errno);
    const int file = system.OpenForWriting(Path("log").c_str());
    ASSERT_GE(file, 0);
    EXPECT_EQ(3, outputs.Write(file, "log", 3));
    EXPECT_EQ(0, outputs.Close(file));
    EXPECT_EQ("log", BytesOf("log"));
}

TEST_F(MemoryOutputs, ThatAreClearedAreGone)
{
    Create("tower.vkm", "old model");
    ASSERT_TRUE(WriteOutput(outputs, Path("tower.vkm"), "model"));
    outputs.Clear();
    EXPECT_EQ(std::nullopt, outputs.Bytes(Path("tower.vkm")));
    EXPECT_EQ("old model", ReadFile(outputs, Path("tower.vkm")));
}

TEST_F(MemoryOutputs, ExistForThoseWhoAskWhetherTheyAreTheSame)
{
    Create("tower.sat", "structure");
    fs::create_directory(folder / "sub");
    const std::string path = Path("tower.vkm");
    const std::string otherSpelling = Path("sub/../tower.vkm");
    EXPECT_FALSE(outputs.IsSameFile(path.c_str(), otherSpelling.c_str()));
    ASSERT_TRUE(WriteOutput(outputs, path, "model"));
    EXPECT_TRUE(outputs.IsSameFile(path.c_str(), otherSpelling.c_str()));
    EXPECT_TRUE(outputs.IsSameFile(otherSpelling.c_str(), path.c_str()));
    EXPECT_FALSE(outputs.IsSameFile(path.c_str(), Path("sub/tower.vkm").c_str()));
    EXPECT_FALSE(outputs.IsSameFile(path.c_str(), Path("tower.sat").c_str()));
    EXPECT_TRUE(outputs.IsSameFile(Path("tower.sat").c_str(), Path("sub/../tower.sat").c_str()));
}

TEST_F(MemoryOutputs, NeedNoPlaceInAFolder)
{
    ASSERT_TRUE(WriteOutput(outputs, "", "text"));
    EXPECT_EQ("text", outputs.Bytes(""));
    EXPECT_TRUE(outputs.IsSameFile("", ""));
}

TEST_F(MemoryOutputs, ThatExceedTheMemoryAreAFileError)
{
    const int file = outputs.OpenForWriting("model");
    EXPECT_EQ(5, outputs.Write(file, "model", 5));
    errno = 0;
    EXPECT_EQ(-1, outputs.Write(file, "", std::numeric_limits<std::size_t>::max() / 2));
    EXPECT_EQ(ENOMEM, errno);
    EXPECT_EQ("model", outputs.Bytes("model"));
    EXPECT_EQ(0, outputs.Close(file));
}

TEST_F(MemoryOutputs, ForWhichThereIsNoMemoryAreAFileError)
{
    class CNoMemory : public CFilePlaces {
    public:
        std::optional<COutputPlace> PlaceOf(const char* /*path*/) override { throw std::bad_alloc(); }
    };
    CNoMemory places;
    CMemoryOutputs without(CFileSystem::System(), places);
    errno = 0;
    EXPECT_EQ(-1, without.OpenForWriting("model"));
    EXPECT_EQ(ENOMEM, errno);
    EXPECT_EQ(std::nullopt, without.Bytes("model"));
}

TEST_F(MemoryOutputs, OfDescriptorsThatAreNotOpenFail)
{
    char byte = 'x';
    const int file = outputs.OpenForWriting("model");
    EXPECT_EQ(-1, outputs.Write(file + 1, &byte, 1));
    EXPECT_EQ(EBADF, errno);
    EXPECT_EQ(-1, outputs.Close(file + 1));
    EXPECT_EQ(-1, outputs.Read(file + 1, &byte, 1));
    EXPECT_EQ(-1, outputs.Read(file, &byte, 1));  // is open for writing
    EXPECT_EQ(EBADF, errno);
    EXPECT_EQ(-1, outputs.Write(-1, &byte, 1));
    EXPECT_EQ(0, outputs.Close(file));
    EXPECT_EQ(-1, outputs.Write(file, &byte, 1));
    EXPECT_EQ(-1, outputs.Close(file));
    const int reader = outputs.OpenForReading("model");
    EXPECT_EQ(-1, outputs.Write(reader, &byte, 1));
    EXPECT_EQ(EBADF, errno);
    EXPECT_EQ(0, outputs.Close(reader));
}

}  // namespace
}  // namespace satwecvt
