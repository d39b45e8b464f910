// What a conversion shows to its user: the progress window, its lines and stages, and the cancel.

#include "support/CheckedConversion.h"
#include "support/SmallBuilding.h"
#include "support/Stages.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <iterator>
#include <numeric>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

CMemoryFiles SmallFiles()
{
    CMemoryFiles system;
    system.files = {{"structure.sat", SmallStructure()}, {"load.sat", SmallLoads()}};
    return system;
}

TEST(SmallBuilding, WritesEveryBlockAndEveryWarning)
{
    const CConversionResult conversion = ConvertSmallBuilding();
    ASSERT_EQ(0, conversion.result) << FailureReason(conversion);
    const std::string model = conversion.model.value();
    std::size_t at = 0;
    for (const char* keyword :
         {"*VERSION\n", "*NODE ", "*ELEMENT ", "*MATERIAL ", "*SECTION ", "*THICKNESS ", "*CONSTRAINT ", "*FRAME-RLS ",
          "*OFFSET ", "*STLDCASE ", "*USE-STLD, DeadLoad", "*CONLOAD ", "*BEAMLOAD ", "*PRESSURE ",
          "*USE-STLD, LiveLoad", "*CONLOAD ", "*BEAMLOAD ", "*PRESSURE ", "[LiveLoad]"}) {
        at = model.find(keyword, at);
        ASSERT_NE(std::string::npos, at) << keyword;
    }
    EXPECT_EQ(
        "Opening of the wall(story id:1,wall id:2) is not converted\n"
        "The wall(story id:2,wall id:1) has invalid shape\n"
        "The plate(story id:2,plate id:1) has invalid shape\n"
        "Beam load value '0'(story id:2,beam id:1) is not converted\n"
        "Beam load value '0'(story id:2,beam id:1) is not converted\n",
        conversion.messageLog);
}

TEST(ElementBlock, StandsInEveryBuildingWithAMember)
{
    const std::string members[] = {"1 11 12 1 0 0 0\n", "1 1 12 1 0 0 0\n", "1 1 12 1 0 0 0\n",
                                   "1 2 0 0 0 200 0 0 0 0\n11 12 13 14\n", "1 3 0 120 11 12 13\n"};
    constexpr unsigned int kSetsOfKinds = 1U << std::size(members);
    for (unsigned int kinds = 0; kinds < kSetsOfKinds; ++kinds) {
        SCOPED_TRACE(kinds);
        std::string structure =
            "1 1 1 0 0\n1 1 6 0 300 600 0 0 0 0\n0 0 0 0\n1 1 0 0 0 0\n1 1 0\n1\n3600 30 40 30 25 16\n4";
        std::string lines = "1 11 0 0 0 3600\n2 12 0 6000 0 3600\n3 13 0 6000 5000 3600\n4 14 0 0 5000 3600\n";
        for (std::size_t kind = 0; kind < std::size(members); ++kind) {
            const bool isThere = (kinds >> kind & 1U) != 0;
            structure += isThere ? " 1" : " 0";
            lines += isThere ? members[kind] : "";
        }
        const CAnswer answer = Convert(structure + "\n" + lines, "0\n");
        ExpectWritten(answer);
        EXPECT_EQ(kinds != 0, answer.conversion.model.value().find("*ELEMENT ") != std::string::npos);
    }
}

TEST(Report, TellsWhyAModelIsIncomplete)
{
    const CAnswer sameKeys =
        Convert(Replaced(SmallStructure(), "\n2 112 0 6000 0 3600\n", "\n1 112 0 6000 0 3600\n"), SmallLoads());
    EXPECT_EQ(-1, sameKeys.conversion.result);
    EXPECT_EQ("node 1 of story 1 stands here and in line 21: a key may stand once", FailureReason(sameKeys.conversion));
    EXPECT_EQ(ESource::StructureFile, sameKeys.conversion.report.failure->place.source);
    EXPECT_EQ(22, sameKeys.conversion.report.failure->place.line);

    const CAnswer sameStories = Convert(Replaced(SmallStructure(), "\n2 2 0\n4\n", "\n1 2 0\n4\n"), SmallLoads());
    EXPECT_EQ(-1, sameStories.conversion.result);
    EXPECT_EQ("story 1 stands here and in line 16: a key may stand once", FailureReason(sameStories.conversion));
    EXPECT_EQ(43, sameStories.conversion.report.failure->place.line);

    const CAnswer threeTimes = Convert(Replaced(SmallStructure(), "\n2 112 0 6000 0 3600\n3 113 0 6000 5000 3600\n",
                                                "\n1 112 0 6000 0 3600\n1 113 0 6000 5000 3600\n"),
                                       SmallLoads());
    EXPECT_EQ("node 1 of story 1 stands here and in line 21: a key may stand once",
              FailureReason(threeTimes.conversion));
    EXPECT_EQ(23, threeTimes.conversion.report.failure->place.line);

    const CAnswer noWall = Convert(SmallStructure(), Replaced(SmallLoads(), "7 1 21 0", "7 9 21 0"));
    EXPECT_EQ(-1, noWall.conversion.result);
    EXPECT_EQ("a force on wall 9 of story 1, which does not exist", FailureReason(noWall.conversion));

    EXPECT_EQ("", FailureReason(ConvertSmallBuilding()));
}

TEST(ProgressWindow, SeesTheTotalOnceAndEveryLineInOrder)
{
    CMemoryFiles system = SmallFiles();
    CScriptedInterface screen;
    const CConversionResult conversion = ConvertMemoryFiles(screen, system);
    EXPECT_EQ(std::vector{LineCount(SmallStructure()) + LineCount(SmallLoads())}, screen.totals);
    // Every line once, and story line 4 of both stories once more.
    EXPECT_EQ(screen.totals[0] + 2, conversion.report.lines.read);
    EXPECT_EQ(conversion.report.lines.read, screen.steps);
    std::vector<std::int32_t> expected(static_cast<std::size_t>(screen.steps));
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(expected, screen.lines);
    EXPECT_EQ(1, screen.windowsCreated);
    EXPECT_EQ(0, screen.windowsAlive);
}

TEST(ProgressWindow, ShowsTheStagesInOrder)
{
    for (const char* loads : {"", "1\n1 1 1 0 1 1\n"}) {
        CMemoryFiles system = SmallFiles();
        system.files["load.sat"] = loads;
        CScriptedInterface screen;
        EXPECT_EQ(0, ConvertMemoryFiles(screen, system).result);
        EXPECT_EQ(kStages, screen.stages);
    }
}

TEST(ProgressWindow, ThatCannotBeCreatedFailsTheConversion)
{
    CMemoryFiles system = SmallFiles();
    system.files["satwecvt.msg"] = "of another conversion";
    const auto before = system.files;
    CScriptedInterface screen;
    screen.hasProgressWindow = false;
    EXPECT_EQ(-1, ConvertMemoryFiles(screen, system).result);
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_EQ(0, screen.steps);
    EXPECT_EQ(before, system.files);
    EXPECT_EQ(0, system.OpenCount());
}

TEST(Cancel, AtAnyStepLeavesEverythingAsItWas)
{
    CMemoryFiles system = SmallFiles();
    system.files["satwecvt.msg"] = "of another conversion";
    const auto before = system.files;
    const std::int32_t steps = LineCount(SmallStructure()) + LineCount(SmallLoads()) + 2;
    for (std::int32_t step = 1; step <= steps; ++step) {
        SCOPED_TRACE(step);
        CScriptedInterface screen;
        screen.cancelAtStep = step;
        const CConversionResult conversion = ConvertMemoryFiles(screen, system);
        EXPECT_EQ(1, conversion.result);
        EXPECT_EQ(step, screen.steps);
        EXPECT_EQ(step - 1, conversion.report.lines.read);
        EXPECT_EQ(std::vector<std::string>{"!!! Read Data File !!!"}, screen.stages);
        EXPECT_TRUE(screen.messages.empty());
        EXPECT_TRUE(screen.fileErrors.empty());
        EXPECT_FALSE(conversion.report.hasFileError);
        EXPECT_FALSE(conversion.report.hasMessageLog);
        EXPECT_EQ(0, screen.windowsAlive);
        EXPECT_EQ(0, system.OpenCount());
        EXPECT_EQ(before, system.files);
    }
    CScriptedInterface screen;
    screen.cancelAtStep = steps + 1;  // too late
    ExpectSmallBuilding(ConvertMemoryFiles(screen, system));
}

TEST(Cancel, LeavesRealFilesAsTheyWere)
{
    const CTemporaryFolder folder;
    WriteBytes("satwecvt.msg", "of another conversion");
    for (const std::int64_t step : {1, 5, 30, 60, 70}) {
        CScriptedInterface screen;
        screen.cancelAtStep = step;
        EXPECT_EQ(1, ConvertTexts(SmallStructure(), SmallLoads(), screen).result);
        EXPECT_EQ(SmallStructure(), ReadBytes("structure.sat"));
        EXPECT_EQ(SmallLoads(), ReadBytes("load.sat"));
        EXPECT_EQ("of another conversion", ReadBytes("satwecvt.msg"));
        EXPECT_EQ(3, std::distance(fs::directory_iterator("."), {}));
    }
}

}  // namespace
}  // namespace satwecvt
