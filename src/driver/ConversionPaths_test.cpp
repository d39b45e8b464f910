#include "writer/OutputPath.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

TEST(OutputPath, TheExtensionIsReplaced)
{
    EXPECT_EQ("D:\\proj\\tower.vkm", OutputPath("D:\\proj\\tower.sat"));
    EXPECT_EQ("/home/proj/tower.vkm", OutputPath("/home/proj/tower.sat"));
    EXPECT_EQ("tower.vkm", OutputPath("tower.SAT"));
    EXPECT_EQ("tower.1.vkm", OutputPath("tower.1.sat"));
    EXPECT_EQ("tower.vkm", OutputPath("tower."));
}

TEST(OutputPath, APathWithoutAPointGetsTheExtension)
{
    EXPECT_EQ("D:\\proj\\tower.vkm", OutputPath("D:\\proj\\tower"));
    EXPECT_EQ("tower.vkm", OutputPath("tower"));
}

TEST(OutputPath, APointInAFolderNameCountsWhenTheFileNameHasNone)
{
    EXPECT_EQ("D:\\rev1.vkm", OutputPath("D:\\rev1.2\\tower"));
    EXPECT_EQ("..vkm", OutputPath("../tower"));
    EXPECT_EQ(".vkm", OutputPath("./tower"));
}

TEST(OutputPath, AModelTextFileNamesItself)
{
    EXPECT_EQ("tower.vkm", OutputPath("tower.vkm"));
}

}  // namespace
}  // namespace satwecvt
