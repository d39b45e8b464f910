#include "support/Cases.h"

#include "support/Conversion.h"
#include "support/TemporaryFolder.h"

#include <algorithm>

namespace satwecvt {

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

std::string CaseTestName(const testing::TestParamInfo<std::string>& info)
{
    std::string name = info.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

void CopyInputs(const fs::path& from)
{
    for (const char* const name : {"structure.sat", "load.sat"}) {
        if (const auto bytes = ReadBytes(from / name)) {
            WriteBytes(name, *bytes);
        }
    }
}

void ExpectBytes(const std::optional<std::string>& expected, const std::optional<std::string>& actual)
{
    ASSERT_EQ(expected.has_value(), actual.has_value());
    if (expected) {
        EXPECT_TRUE(*expected == *actual) << FirstDifference(*expected, *actual);
    }
}

}  // namespace satwecvt
