// The two files that a conversion makes, and what happens where it cannot make them.

#include "satwecvt/ConvertSatwe.h"
#include "support/CheckedConversion.h"
#include "support/SmallBuilding.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

/// The texts of the small building without the records that bring warnings.
std::string QuietStructure()
{
    std::string text = Replaced(SmallStructure(), "250 1000 900 800 700", "250 0 0 0 0");
    text = Replaced(text, "\n121 122 113 114\n", "\n121 122 111 112\n");
    return Replaced(text, "1 3 0 100 121 122 999\n", "1 3 0 100 121 122 123\n");
}
std::string QuietLoads()
{
    return Replaced(SmallLoads(), "1 1 4 0 0 0\n", "1 1 4 0 1 0\n");
}

TEST(Log, OfAnotherConversionIsEmptiedByOneThatWrites)
{
    const CTemporaryFolder folder;
    WriteBytes("satwecvt.msg", "of another conversion");
    CScriptedInterface screen;
    const CConversionResult conversion = ConvertTexts(QuietStructure(), QuietLoads(), screen);
    EXPECT_EQ(0, conversion.result);
    EXPECT_EQ("", conversion.messageLog);
    EXPECT_TRUE(conversion.report.hasMessageLog);
    EXPECT_FALSE(conversion.report.hasFileError);
}

TEST(Log, OfAnotherConversionIsLeftByOneThatDoesNotWrite)
{
    const CTemporaryFolder folder;
    WriteBytes("satwecvt.msg", "of another conversion");
    CScriptedInterface screen;
    const CConversionResult conversion = ConvertTexts("1 1 1\n", "", screen);
    EXPECT_EQ(-1, conversion.result);
    EXPECT_EQ("of another conversion", conversion.messageLog);
    EXPECT_FALSE(conversion.report.hasMessageLog);
    EXPECT_FALSE(fs::exists("structure.vkm"));
}

TEST(Log, ThatIsAFolderGoesUnnoticedWithoutWarnings)
{
    const CTemporaryFolder folder;
    fs::create_directory("satwecvt.msg");
    CScriptedInterface screen;
    const CConversionResult conversion = ConvertTexts(QuietStructure(), QuietLoads(), screen);
    EXPECT_EQ(0, conversion.result);
    EXPECT_TRUE(screen.fileErrors.empty());
    EXPECT_FALSE(conversion.report.hasFileError);
    EXPECT_FALSE(conversion.report.hasMessageLog);
    EXPECT_TRUE(conversion.model.value().ends_with("[LiveLoad] -------------------------\n\n\n"));
}

void ExpectOneFileError(const CScriptedInterface& screen, const CConversionResult& conversion, const std::string& path)
{
    EXPECT_EQ(0, conversion.result);
    EXPECT_TRUE(conversion.report.hasFileError);
    ASSERT_EQ(1U, screen.fileErrors.size());
    EXPECT_TRUE(screen.fileErrors[0].starts_with(path + ": ")) << screen.fileErrors[0];
    EXPECT_GT(screen.fileErrors[0].size(), path.size() + 2) << "names no cause";
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_EQ(0, screen.windowsAlive);
}

TEST(Log, ThatIsAFolderIsAFileErrorAtTheFirstWarning)
{
    const CTemporaryFolder folder;
    fs::create_directory("satwecvt.msg");
    CScriptedInterface screen;
    const CConversionResult conversion = ConvertTexts(SmallStructure(), SmallLoads(), screen);
    ExpectOneFileError(screen, conversion, "satwecvt.msg");
    EXPECT_FALSE(conversion.report.hasMessageLog);
    EXPECT_EQ(std::string::npos, conversion.model.value_or("").find("*STLDCASE"));
}

CConversionResult ConvertPaths(const char* structure, const char* load, CScriptedInterface& screen)
{
    CConvertSatwe converter(screen);
    CConversionResult conversion;
    conversion.result = converter.Convert(structure, load);
    conversion.report = converter.Report();
    return conversion;
}

TEST(Log, WithTheNameOfTheLoadFileIsNotCreated)
{
    const CTemporaryFolder folder;
    WriteBytes("structure.sat", SmallStructure());
    WriteBytes("satwecvt.msg", SmallLoads());
    CScriptedInterface screen;
    ExpectOneFileError(screen, ConvertPaths("structure.sat", "satwecvt.msg", screen), "satwecvt.msg");
    EXPECT_EQ(SmallLoads(), ReadBytes("satwecvt.msg"));

    WriteBytes("structure.sat", QuietStructure());
    WriteBytes("satwecvt.msg", QuietLoads());
    CScriptedInterface quietScreen;
    const CConversionResult quiet = ConvertPaths("structure.sat", "./satwecvt.msg", quietScreen);
    EXPECT_EQ(0, quiet.result);
    EXPECT_FALSE(quiet.report.hasFileError);
    EXPECT_FALSE(quiet.report.hasMessageLog);
    EXPECT_TRUE(quietScreen.fileErrors.empty());
    EXPECT_EQ(QuietLoads(), ReadBytes("satwecvt.msg"));
    EXPECT_TRUE(ReadBytes("structure.vkm").value().ends_with("[LiveLoad] -------------------------\n\n\n"));
}

TEST(Log, WithTheNameOfTheStructureFileIsNotCreated)
{
    const CTemporaryFolder folder;
    WriteBytes("satwecvt.msg", QuietStructure());
    WriteBytes("load.sat", QuietLoads());
    CScriptedInterface screen;
    EXPECT_EQ(0, ConvertPaths("satwecvt.msg", "load.sat", screen).result);
    EXPECT_TRUE(screen.fileErrors.empty());
    EXPECT_EQ(QuietStructure(), ReadBytes("satwecvt.msg"));
    EXPECT_TRUE(fs::exists("satwecvt.vkm"));
}

TEST(Model, WithTheNameOfAnInputFileIsNotCreated)
{
    const CTemporaryFolder folder;
    WriteBytes("x.vkm", SmallStructure());
    WriteBytes("load.sat", SmallLoads());
    CScriptedInterface screen;
    ExpectOneFileError(screen, ConvertPaths("x.vkm", "load.sat", screen), "x.vkm");
    EXPECT_EQ(SmallStructure(), ReadBytes("x.vkm"));
    EXPECT_EQ("", ReadBytes("satwecvt.msg"));  // opened first, and nothing is written any more

    WriteBytes("y.sat", SmallStructure());
    WriteBytes("y.vkm", SmallLoads());
    CScriptedInterface secondScreen;
    ExpectOneFileError(secondScreen, ConvertPaths("y.sat", "y.vkm", secondScreen), "y.vkm");
    EXPECT_EQ(SmallStructure(), ReadBytes("y.sat"));
    EXPECT_EQ(SmallLoads(), ReadBytes("y.vkm"));
}

TEST(Model, ThatIsTheLogTooIsNotWritten)
{
    const CTemporaryFolder folder;
    WriteBytes("satwecvt.msg", "of another conversion");
    fs::create_hard_link("satwecvt.msg", "structure.vkm");
    CScriptedInterface screen;
    ExpectOneFileError(screen, ConvertTexts(SmallStructure(), SmallLoads(), screen), "structure.vkm");
    EXPECT_EQ("", ReadBytes("satwecvt.msg"));  // opened first, and nothing is written any more
}

TEST(Model, WhosePathIsAFolderIsAFileError)
{
    const CTemporaryFolder folder;
    fs::create_directory("structure.vkm");
    CScriptedInterface screen;
    ExpectOneFileError(screen, ConvertTexts(SmallStructure(), SmallLoads(), screen), "structure.vkm");
    EXPECT_TRUE(fs::is_empty("structure.vkm"));
    EXPECT_EQ(std::vector<std::string>{"!!! Read Data File !!!"}, screen.stages);
}

TEST(Model, WhoseFolderIsGoneIsAFileError)
{
    const CTemporaryFolder folder;
    fs::create_directory("project");
    WriteBytes("project/structure.sat", SmallStructure());
    WriteBytes("load.sat", SmallLoads());
    CScriptedInterface screen;
    const std::int32_t structureSteps = LineCount(SmallStructure()) + 2;
    screen.onStep = [&](std::int64_t step) {
        if (step == structureSteps + 1) {  // the structure file is closed here
            fs::rename("project", "moved");
        }
    };
    ExpectOneFileError(screen, ConvertPaths("project/structure.sat", "load.sat", screen), "project/structure.vkm");
    EXPECT_EQ(SmallStructure(), ReadBytes("moved/structure.sat"));
    EXPECT_EQ(1, std::distance(fs::directory_iterator("moved"), {}));
    EXPECT_FALSE(fs::exists("project"));
}

TEST(Model, LiesBesideTheStructureFileAndTheLogInTheWorkingFolder)
{
    const CTemporaryFolder folder;
    fs::create_directories("rev1.2");
    WriteBytes("rev1.2/tower", SmallStructure());
    WriteBytes("rev1.2/load.sat", SmallLoads());
    CScriptedInterface screen;
    EXPECT_EQ(0, ConvertPaths("rev1.2/tower", "rev1.2/load.sat", screen).result);
    EXPECT_EQ(ConvertSmallBuilding().model, ReadBytes("rev1.vkm"));  // cut at the last dot of the whole path
    EXPECT_EQ(ConvertSmallBuilding().messageLog, ReadBytes("satwecvt.msg"));
}

TEST(Model, OfALongerFormerConversionIsReplaced)
{
    const CTemporaryFolder folder;
    WriteBytes("structure.vkm", std::string(200'000, 'x'));
    WriteBytes("satwecvt.msg", std::string(200'000, 'x'));
    CScriptedInterface screen;
    ExpectSmallBuilding(ConvertTexts(SmallStructure(), SmallLoads(), screen));
}

}  // namespace
}  // namespace satwecvt
