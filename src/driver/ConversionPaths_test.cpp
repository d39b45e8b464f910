#include "satwecvt/ConvertSatwe.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

std::string ModelPath(std::string_view structurePath)
{
    return LibraryPaths(structurePath, "load.sat").model;
}

TEST(LibraryPaths, TheExtensionIsReplaced)
{
    EXPECT_EQ("D:\\proj\\tower.vkm", ModelPath("D:\\proj\\tower.sat"));
    EXPECT_EQ("/home/proj/tower.vkm", ModelPath("/home/proj/tower.sat"));
    EXPECT_EQ("tower.vkm", ModelPath("tower.SAT"));
    EXPECT_EQ("tower.1.vkm", ModelPath("tower.1.sat"));
    EXPECT_EQ("tower.vkm", ModelPath("tower."));
}

TEST(LibraryPaths, APathWithoutAPointGetsTheExtension)
{
    EXPECT_EQ("D:\\proj\\tower.vkm", ModelPath("D:\\proj\\tower"));
    EXPECT_EQ("tower.vkm", ModelPath("tower"));
}

TEST(LibraryPaths, APointInAFolderNameCountsWhenTheFileNameHasNone)
{
    EXPECT_EQ("D:\\rev1.vkm", ModelPath("D:\\rev1.2\\tower"));
    EXPECT_EQ("..vkm", ModelPath("../tower"));
    EXPECT_EQ(".vkm", ModelPath("./tower"));
}

TEST(LibraryPaths, AModelTextFileNamesItself)
{
    EXPECT_EQ("tower.vkm", ModelPath("tower.vkm"));
}

TEST(LibraryPaths, TheInputsStayAsTheyAreAndTheLogLiesInTheWorkingFolder)
{
    const CConversionPaths paths = LibraryPaths("a/tower.sat", "b/load.sat");
    EXPECT_EQ("a/tower.sat", paths.structure);
    EXPECT_EQ("b/load.sat", paths.load);
    EXPECT_EQ("satwecvt.msg", paths.messageLog);
}

}  // namespace
}  // namespace satwecvt
