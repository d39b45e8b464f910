// Conversions whose outputs are kept only when all went well, or stay in memory: the converter does not notice.

#include "output/MemoryOutputs.h"
#include "output/SafeFiles.h"
#include "satwecvt/ConvertSatwe.h"
#include "support/CheckedConversion.h"
#include "support/SmallBuilding.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <set>
#include <string>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;
using StringSet = std::set<std::string>;

/// The files of this machine, of which one output call fails.
class CFailingCall : public CFileSystem {
public:
    int failAt = 0;  // counted from 1
    int calls = 0;

    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override
    {
        return Fails() ? -1 : CFileSystem::Write(file, bytes, size);
    }

private:
    bool Fails()
    {
        errno = ENOSPC;
        return ++calls == failAt;
    }
};

/// A folder with the inputs of the small building and the outputs of another conversion.
class Outputs : public testing::Test {
protected:
    Outputs()
    {
        WriteBytes("structure.sat", SmallStructure());
        WriteBytes("load.sat", SmallLoads());
        WriteBytes("structure.vkm", "old model");
        WriteBytes("satwecvt.msg", "old log");
    }

    /// Converts with outputs at these paths, and keeps them when all went well, as the program does.
    CConversionReport ConvertAndKeep(const CConversionPaths& paths, CFileSystem& system = CFileSystem::System())
    {
        CSafeFiles files(system);
        CConvertSatwe converter(screen, nullptr, files);
        const int result = converter.Convert(paths);
        if (result == kWritten && !converter.Report().hasFileError) {
            files.Keep();
        }
        return converter.Report();
    }

    void ExpectOldOutputs()
    {
        EXPECT_EQ("old model", ReadBytes("structure.vkm"));
        EXPECT_EQ("old log", ReadBytes("satwecvt.msg"));
        StringSet names;
        for (const auto& entry : fs::directory_iterator(folder.Path())) {
            names.insert(entry.path().filename().string());
        }
        EXPECT_EQ((StringSet{"load.sat", "satwecvt.msg", "structure.sat", "structure.vkm"}), names);
        EXPECT_EQ(SmallStructure(), ReadBytes("structure.sat"));
        EXPECT_EQ(SmallLoads(), ReadBytes("load.sat"));
    }

    const CConversionResult expected = ConvertSmallBuilding();
    const CConversionPaths usual = LibraryPaths("structure.sat", "load.sat");
    CTemporaryFolder folder;
    CScriptedInterface screen;
};

TEST_F(Outputs, OfAConversionThatSucceedsAreKept)
{
    const CConversionReport report = ConvertAndKeep(usual);
    EXPECT_EQ(kWritten, report.result);
    EXPECT_TRUE(report.hasMessageLog);
    EXPECT_EQ(expected.model, ReadBytes("structure.vkm"));
    EXPECT_EQ(expected.messageLog, ReadBytes("satwecvt.msg"));
    EXPECT_EQ(4, std::distance(fs::directory_iterator(folder.Path()), {}));
}

TEST_F(Outputs, OfAConversionThatFailsAreTheOldOnes)
{
    WriteBytes("broken.sat", "1 1 1\n");
    EXPECT_EQ(kFailed, ConvertAndKeep({"broken.sat", "load.sat", "structure.vkm", "satwecvt.msg"}).result);
    fs::remove("broken.sat");
    ExpectOldOutputs();
}

TEST_F(Outputs, OfAConversionThatIsCancelledAreTheOldOnes)
{
    screen.cancelAtStep = 3;
    EXPECT_EQ(kCancelled, ConvertAndKeep(usual).result);
    ExpectOldOutputs();
}

TEST_F(Outputs, ThatCannotBeWrittenAreTheOldOnes)
{
    CFailingCall counting;
    EXPECT_FALSE(ConvertAndKeep(usual, counting).hasFileError);
    ASSERT_GE(counting.calls, 2);
    for (int number = 1; number <= counting.calls; ++number) {
        WriteBytes("structure.vkm", "old model");
        WriteBytes("satwecvt.msg", "old log");
        CFailingCall failing;
        failing.failAt = number;
        EXPECT_TRUE(ConvertAndKeep(usual, failing).hasFileError);
        ExpectOldOutputs();
    }
}

TEST_F(Outputs, AtOnePlaceAreAFileError)
{
    fs::create_directory("out");
    const CConversionPaths paths{"structure.sat", "load.sat", "out/new", "out/../out/./new"};
    EXPECT_TRUE(ConvertAndKeep(paths).hasFileError);
    EXPECT_EQ(std::vector<std::string>{"out/new: it is the message log of this conversion"}, screen.fileErrors);
    EXPECT_TRUE(fs::is_empty("out"));
    fs::remove("out");
    ExpectOldOutputs();
}

TEST_F(Outputs, InThePlaceOfAnInputAreAFileError)
{
    const CConversionPaths paths{"structure.sat", "load.sat", "./structure.sat", "satwecvt.msg"};
    EXPECT_TRUE(ConvertAndKeep(paths).hasFileError);
    ExpectOldOutputs();
}

TEST_F(Outputs, InMemoryAreThoseOfFiles)
{
    CMemoryOutputs files(CFileSystem::System());
    CConvertSatwe converter(screen, nullptr, files);
    EXPECT_EQ(kWritten, converter.Convert(usual));
    EXPECT_FALSE(converter.Report().hasFileError);
    EXPECT_TRUE(expected.model == files.Bytes("structure.vkm"));
    EXPECT_TRUE(expected.messageLog == files.Bytes("satwecvt.msg"));
    ExpectOldOutputs();
}

TEST_F(Outputs, InMemoryAtOnePlaceAreAFileError)
{
    CMemoryOutputs files(CFileSystem::System());
    CConvertSatwe converter(screen, nullptr, files);
    EXPECT_EQ(kWritten, converter.Convert({"structure.sat", "load.sat", "new", "./new"}));
    EXPECT_EQ(std::vector<std::string>{"new: it is the message log of this conversion"}, screen.fileErrors);
    ExpectOldOutputs();
}

}  // namespace
}  // namespace satwecvt
