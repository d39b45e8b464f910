// Nothing is lost without a word, whatever is converted: the records and the loads of the input, less what findings
// took away, are in the model.

#include "support/Balance.h"
#include "support/CheckedConversion.h"
#include "support/Losses.h"
#include "support/SmallBuilding.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

/// The rows of a pair of files; none when it cannot be converted. What is lost is accounted for.
std::vector<CBalanceRow> RowsOf(const std::string& structure, const std::string& load)
{
    CMemoryFiles files;
    files.files = {{"structure.sat", structure}, {"load.sat", load}};
    CScriptedInterface screen;
    const CConversionResult conversion = ConvertMemoryFiles(screen, files);
    if (conversion.result != kWritten) {
        return {};
    }
    const auto input = ReadAgain(files);
    EXPECT_EQ("", BrokenCounts(*input, conversion));
    return BalanceOf(*input, conversion);
}

void ExpectSum(const CForceSum& expected, const CForceSum& actual)
{
    EXPECT_EQ(expected.count, actual.count);
    EXPECT_DOUBLE_EQ(expected.fx, actual.fx);
    EXPECT_DOUBLE_EQ(expected.fy, actual.fy);
    EXPECT_DOUBLE_EQ(expected.fz, actual.fz);
}

TEST(Balance, OfTheSmallBuilding)
{
    const std::vector<CBalanceRow> rows = RowsOf(SmallStructure(), SmallLoads());
    ASSERT_EQ(4U, rows.size());
    EXPECT_EQ("", BrokenRows(rows));
    // 45000 on a beam, 8 along the half length 1500, 12 along 6000 less a slope of 2400, 40000 on a node, 12000 on a
    // wall, 9 along the 6000 of a wall
    ExpectSum({6, 0, 0, 45000 + 12000 + 43200 + 40000 + 12000 + 54000}, rows[0].read);
    ExpectSum({7, 0, 0, 206200}, rows[0].model);
    // 6 along the 6000 of a beam, and on a node 10000 with 5000 along x
    ExpectSum({2, 5000, 0, 36000 + 10000}, rows[1].read);
    ExpectSum({2, 5000, 0, 46000}, rows[1].model);
    // Of story 2 a trapezoid of nothing, and one load that cannot be summed.
    ExpectSum({1, 0, 0, 0}, rows[2].read);
    ExpectSum({1, 0, 0, 0}, rows[2].lost);
    EXPECT_EQ(1, rows[2].notSummed);
    // -3 along 6000 on a wall that is left out, and 1 down, 2 and 3 across on a node that is not there.
    ExpectSum({2, 2, 3, 1 - 18000}, rows[3].read);
    ExpectSum({1, 0, 0, -18000}, rows[3].lost);
    ExpectSum({2, 2, 3, 1}, rows[3].model);
}

TEST(Balance, HoldsForAllCasesAndBothSamples)
{
    std::vector<fs::path> folders{SATWECVT_SAMPLES "/frame", SATWECVT_SAMPLES "/tower"};
    for (const auto& entry : fs::directory_iterator(SATWECVT_CASES)) {
        folders.push_back(entry.path());
    }
    std::size_t rows = 0;
    for (const fs::path& folder : folders) {
        const auto structure = ReadBytes(folder / "structure.sat");
        const auto load = ReadBytes(folder / "load.sat");
        if (structure && load) {
            const std::vector<CBalanceRow> balance = RowsOf(*structure, *load);
            EXPECT_EQ("", BrokenRows(balance)) << folder;
            rows += balance.size();
        }
    }
    EXPECT_GT(rows, 100U);
}

constexpr std::string_view kNumbers[] = {
    "0",        "1",        "-1",         "2",           "3",    "4",     "11",     "12",    "21",     "22",
    "31",       "101",      "111",        "112",         "-113", "0.5",   "1500",   "3000",  "6000",   "6000.005",
    "2999",     "3000.002", "2998",       "-0.004",      "-7",   "1e300", "-1e300", "1e308", "1e-320", "1e-160",
    "1e-5",     "9e-6",     "inf",        "-inf",        "nan",  "1/3",   "1e6/7",  "1e20",  "1e150",  "1e154",
    "123456.7", "99999.95", "2147483647", "-2147483648", "0/0",  "7001",  "1e-9",   "40000", "5000",   "100",
};

/// Replaces some of the numbers of a text by hostile ones, and now and then doubles or drops a line.
class CDamage {
public:
    explicit CDamage(std::uint32_t seed) : random(seed) {}

    std::size_t Below(std::size_t count) { return random() % count; }

    void ReplaceNumber(std::string& text)
    {
        constexpr std::string_view kNumber = "0123456789.+-*/";
        const std::size_t begin = text.find_first_of("0123456789", Below(text.size()));
        if (begin != std::string::npos) {
            const std::size_t end = std::min(text.find_first_not_of(kNumber, begin), text.size());
            text.replace(begin, end - begin, kNumbers[Below(std::size(kNumbers))]);
        }
    }

    void ChangeLine(std::string& text)
    {
        std::vector<std::string> lines = SplitLines(text);
        const std::size_t line = Below(lines.size());
        if (Below(2) == 0) {
            std::swap(lines[line], lines[Below(lines.size())]);
        } else {
            lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(line), lines[Below(lines.size())]);
        }
        text = JoinLines(lines);
    }

private:
    std::mt19937 random;
};

TEST(Balance, HoldsForDamagedBuildings)
{
    int converted = 0;
    for (std::uint32_t round = 0; round < 4000 && !HasFailure(); ++round) {
        CDamage damage(round);
        std::string structure = SmallStructure();
        std::string load = SmallLoads();
        for (std::size_t count = damage.Below(3); count > 0; --count) {
            damage.ReplaceNumber(structure);
        }
        for (std::size_t count = 1 + damage.Below(8); count > 0; --count) {
            damage.ReplaceNumber(load);
        }
        if (damage.Below(4) == 0) {
            damage.ChangeLine(load);
        }
        const std::vector<CBalanceRow> rows = RowsOf(structure, load);
        converted += rows.empty() ? 0 : 1;
        EXPECT_EQ("", BrokenRows(rows)) << "round " << round << "\n" << structure << "%% load file\n" << load;
    }
    EXPECT_GT(converted, 1500);
}

}  // namespace
}  // namespace satwecvt
