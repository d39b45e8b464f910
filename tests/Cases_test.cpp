// Whole conversions: every folder below tests/cases holds two input files, the bytes that they have to become, and in
// case.json what the user sees. A file that is missing in the folder has to be missing in fact.

#include "support/Conversion.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> CaseNames()
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(SATWECVT_CASES)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class Cases : public testing::TestWithParam<std::string> {
protected:
    const fs::path folder = fs::path(SATWECVT_CASES) / GetParam();
    const nlohmann::json about = nlohmann::json::parse(ReadBytes(folder / "case.json").value());
};

void CopyInput(const fs::path& folder, const char* name)
{
    if (const auto bytes = ReadBytes(folder / name)) {
        WriteBytes(name, *bytes);
    }
}

void ExpectBytes(const std::optional<std::string>& expected, const std::optional<std::string>& actual)
{
    ASSERT_EQ(expected.has_value(), actual.has_value());
    if (expected) {
        EXPECT_TRUE(*expected == *actual) << FirstDifference(*expected, *actual);
    }
}

TEST_P(Cases, ConvertsAsExpected)
{
    const CTemporaryFolder workingFolder;
    CopyInput(folder, "structure.sat");
    CopyInput(folder, "load.sat");
    CScriptedInterface screen;
    screen.cancelAtStep = about.value("cancelAtStep", 0);

    const CConversionResult conversion = ConvertWorkingFolder(screen);

    EXPECT_EQ(about.at("result"), conversion.result) << conversion.report.failure;
    EXPECT_EQ(about.value("messages", std::vector<std::string>{}), screen.messages);
    EXPECT_TRUE(screen.fileErrors.empty());
    EXPECT_EQ(0, screen.windowsAlive);
    ASSERT_EQ(1U, screen.totals.size());
    EXPECT_EQ(about.value("totalLines", screen.totals[0]), screen.totals[0]);
    EXPECT_EQ(about.value("lineCounter", conversion.report.lineCounter), conversion.report.lineCounter);
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

std::string TestName(const testing::TestParamInfo<std::string>& info)
{
    std::string name = info.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, Cases, testing::ValuesIn(CaseNames()), TestName);

}  // namespace
}  // namespace satwecvt
