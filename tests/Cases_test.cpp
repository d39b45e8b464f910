// Every case below tests/cases, converted in this process: the bytes, the messages, the steps.

#include "support/Cases.h"
#include "support/Conversion.h"
#include "support/Figure.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

class Cases : public testing::TestWithParam<std::string> {
protected:
    const fs::path folder = fs::path(SATWECVT_CASES) / GetParam();
    const nlohmann::json about = nlohmann::json::parse(ReadBytes(folder / "case.json").value());
};

TEST_P(Cases, ConvertsAsExpected)
{
    const CTemporaryFolder workingFolder;
    CopyInputs(folder);
    CScriptedInterface screen;
    screen.cancelAtStep = about.value("cancelAtStep", 0);

    const CConversionResult conversion = ConvertWorkingFolder(screen);

    EXPECT_EQ(about.at("result"), conversion.result) << FailureReason(conversion);
    EXPECT_EQ(about.value("messages", std::vector<std::string>{}), screen.messages);
    EXPECT_TRUE(screen.fileErrors.empty());
    EXPECT_EQ(0, screen.windowsAlive);
    ASSERT_EQ(1U, screen.totals.size());
    EXPECT_EQ(about.value("totalLines", screen.totals[0]), screen.totals[0]);
    EXPECT_EQ(about.value("lineCounter", conversion.report.lines.read), conversion.report.lines.read);
    EXPECT_EQ(about.value("steps", screen.steps), screen.steps);
    {
        SCOPED_TRACE("model text file");
        ExpectBytes(ReadBytes(folder / "expected.vkm"), conversion.model);
    }
    {
        SCOPED_TRACE("message log");
        ExpectBytes(ReadBytes(folder / "expected.msg"), conversion.messageLog);
    }
    EXPECT_EQ(ReadBytes(folder / "structure.sat"), ReadBytes("structure.sat"));
    EXPECT_EQ(ReadBytes(folder / "load.sat"), ReadBytes("load.sat"));
}

INSTANTIATE_TEST_SUITE_P(All, Cases, testing::ValuesIn(CaseNames()), CaseTestName);

TEST(CaseNames, AreCounted)
{
    EXPECT_FALSE(CaseNames().empty());
    PrintFigure(CaseNames().size(), "cases converted to their expected bytes");
}

}  // namespace
}  // namespace satwecvt
