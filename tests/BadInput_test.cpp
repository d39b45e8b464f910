// Input files that are missing, empty or cut short.

#include "support/CheckedConversion.h"
#include "support/SmallBuilding.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

constexpr const char* kNoStructure = "Can't open structure input file!";
constexpr const char* kNoLoads = "Can't open load file!";

TEST(MissingFile, StructureIsReportedAndLoadLinesStillCount)
{
    const CTemporaryFolder folder;
    WriteBytes("load.sat", SmallLoads());
    CScriptedInterface screen;
    EXPECT_EQ(-1, ConvertWorkingFolder(screen).result);
    EXPECT_EQ(Messages{kNoStructure}, screen.messages);
    EXPECT_EQ(std::vector<std::int32_t>{LineCount(SmallLoads())}, screen.totals);
    EXPECT_EQ(0, screen.steps);
    EXPECT_EQ(SmallLoads(), ReadBytes("load.sat"));
    EXPECT_EQ(1, std::distance(fs::directory_iterator("."), {}));
}

TEST(MissingFile, LoadsAreReportedAfterTheStructureWasRead)
{
    const CTemporaryFolder folder;
    WriteBytes("structure.sat", SmallStructure());
    CScriptedInterface screen;
    EXPECT_EQ(-1, ConvertWorkingFolder(screen).result);
    EXPECT_EQ(Messages{kNoLoads}, screen.messages);
    EXPECT_EQ(std::vector<std::int32_t>{LineCount(SmallStructure())}, screen.totals);
    EXPECT_GE(screen.steps, LineCount(SmallStructure()));
    EXPECT_EQ(SmallStructure(), ReadBytes("structure.sat"));
    EXPECT_EQ(1, std::distance(fs::directory_iterator("."), {}));
}

TEST(MissingFile, OfTwoTheStructureIsReported)
{
    const CTemporaryFolder folder;
    CScriptedInterface screen;
    EXPECT_EQ(-1, ConvertWorkingFolder(screen).result);
    EXPECT_EQ(Messages{kNoStructure}, screen.messages);
    EXPECT_EQ(std::vector<std::int32_t>{0}, screen.totals);
    EXPECT_TRUE(fs::is_empty("."));
}

TEST(Folder, IsNoStructureFile)
{
    const CTemporaryFolder folder;
    fs::create_directory("structure.sat");
    WriteBytes("load.sat", SmallLoads());
    CScriptedInterface screen;
    EXPECT_EQ(-1, ConvertWorkingFolder(screen).result);
    EXPECT_EQ(Messages{kNoStructure}, screen.messages);
    EXPECT_FALSE(fs::exists("structure.vkm"));
}

TEST(Folder, IsNoLoadFile)
{
    const CTemporaryFolder folder;
    WriteBytes("structure.sat", SmallStructure());
    fs::create_directory("load.sat");
    CScriptedInterface screen;
    EXPECT_EQ(-1, ConvertWorkingFolder(screen).result);
    EXPECT_EQ(Messages{kNoLoads}, screen.messages);
    EXPECT_FALSE(fs::exists("structure.vkm"));
}

TEST(FileWithoutData, IsNoStructure)
{
    for (const char* text :
         {"", "\n", "C", "C only\nc comments\n", " \t\n\n \n", "\r\n\r\n", "\x1A", "\x1A 1 1 1\n", "5", "C\n7"}) {
        SCOPED_TRACE(testing::PrintToString(text));
        ExpectNotRead(Convert(text, SmallLoads()));
    }
    ExpectNotRead(Convert(std::string(3, '\0'), SmallLoads()));
}

TEST(FileWithoutData, HoldsNoLoads)
{
    const CAnswer expected = Convert(SmallStructure(), "0\n0\n");
    for (const char* text : {"", "\n", "C", "C only\nc comments\n", " \t\n\n \n", "\x1A",
                             "\x1A"
                             "8\n",
                             "5", "8\n"}) {
        SCOPED_TRACE(testing::PrintToString(text));
        const CAnswer answer = Convert(SmallStructure(), text);
        ExpectSameFiles(expected, answer);
        EXPECT_EQ(0, LoadCount(answer));
    }
}

TEST(CutStructure, FailsAtEveryByteWithoutAnOutput)
{
    const std::string whole = SmallStructure();
    ExpectWritten(Convert(whole, SmallLoads()));
    for (std::size_t size = 0; size < whole.size(); ++size) {
        SCOPED_TRACE("cut after " + std::to_string(size) + " bytes");
        ExpectNotRead(Convert(whole.substr(0, size), SmallLoads()));
        if (HasFailure()) {
            return;
        }
    }
}

TEST(CutStructure, FailsAtEveryLineOfARealFile)
{
    const CTemporaryFolder folder;
    const std::vector<std::string> lines = SplitLines(SmallStructure());
    std::string text;
    for (const std::string& line : lines) {
        SCOPED_TRACE("cut before: " + line);
        CScriptedInterface screen;
        const CConversionResult conversion = ConvertTexts(text, SmallLoads(), screen);
        EXPECT_EQ(-1, conversion.result);
        EXPECT_EQ(Messages{}, screen.messages);
        EXPECT_EQ(text, ReadBytes("structure.sat"));
        EXPECT_EQ(SmallLoads(), ReadBytes("load.sat"));
        EXPECT_EQ(2, std::distance(fs::directory_iterator("."), {}));
        text += line;
    }
}

/// The small building's load file with its first loads alone, in blocks whose counts say so.
std::string FirstLoads(std::size_t count)
{
    std::array<std::vector<std::string>, 2> stories;
    std::size_t story = 0;
    for (const std::string& line : SplitLines(SmallLoads())) {
        const bool isData = line.find(' ') != std::string::npos && line[0] != 'C';
        story = line.starts_with("C Loads of story 2") ? 1 : story;
        if (isData && stories[0].size() + stories[1].size() < count) {
            stories[story].push_back(line);
        }
    }
    std::string text;
    for (const auto& lines : stories) {
        text += std::to_string(lines.size()) + "\n" + JoinLines(lines);
    }
    return text;
}

TEST(CutLoads, KeepTheLoadsUpToTheCutLine)
{
    std::string text;
    std::size_t loads = 0;
    for (const std::string& line : SplitLines(SmallLoads())) {
        SCOPED_TRACE("cut before: " + line);
        const CAnswer answer = Convert(SmallStructure(), text);
        EXPECT_EQ(static_cast<std::int64_t>(loads), LoadCount(answer));
        ExpectSameFiles(Convert(SmallStructure(), FirstLoads(loads)), answer);
        text += line;
        loads += line.find(' ') != std::string::npos && line[0] != 'C' ? 1U : 0U;
    }
    EXPECT_EQ(12U, loads);
}

TEST(CutLoads, AreWrittenAtEveryByte)
{
    const std::string whole = SmallLoads();
    std::int64_t before = 0;
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        SCOPED_TRACE("cut after " + std::to_string(size) + " bytes");
        const CAnswer answer = Convert(SmallStructure(), whole.substr(0, size));
        ExpectWritten(answer);
        const std::int64_t loads = LoadCount(answer);
        EXPECT_TRUE(loads == before || loads == before + 1) << loads;
        before = loads;
        if (HasFailure()) {
            return;
        }
    }
    EXPECT_EQ(12, before);
}

}  // namespace
}  // namespace satwecvt
