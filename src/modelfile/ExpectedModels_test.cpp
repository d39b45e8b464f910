// The model files that the cases below tests/cases expect, made by hand: those of whole conversions are read without a
// complaint, and those that a failure left incomplete are refused.
#include "modelfile/ModelTexts_test.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

TEST(ExpectedModels, OfWholeConversionsAreReadAndOthersAreNot)
{
    std::size_t whole = 0;
    std::size_t incomplete = 0;
    for (const auto& entry : fs::directory_iterator(SATWECVT_CASES)) {
        const fs::path model = entry.path() / "expected.vkm";
        if (!fs::exists(model)) {
            continue;
        }
        if (BytesOf(entry.path() / "case.json").find("\"result\": 0") != std::string::npos) {
            EXPECT_EQ("", ComplaintAbout(BytesOf(model))) << model;
            ++whole;
        } else {
            EXPECT_NE("", ComplaintAbout(BytesOf(model))) << model;
            ++incomplete;
        }
    }
    EXPECT_GT(whole, 150U);
    EXPECT_GT(incomplete, 10U);
}

}  // namespace
}  // namespace satwecvt
