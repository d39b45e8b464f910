#include "writer/ReleaseBlock.h"

#include "text/WrittenText_test.h"

#include <gtest/gtest.h>

#include <vector>

namespace satwecvt {
namespace {

std::string BlockOf(const std::vector<T_SATWE_BMER_D>& releases)
{
    const CSatweModel model;
    CConversionTables tables(model);
    tables.releases = releases;
    CWrittenCounts counts;
    return WrittenText([&](COutputFile& file) { WriteReleases(file, tables, counts); });
}

const std::string kHeader =
    "*FRAME-RLS    ; Beam End Release\n"
    "; ELEM_LIST, FLAG-i, Fxi, Fyi, Fzi, Mxi, Myi, Mzi        ; 1st line\n"
    ";            FLAG-j, Fxj, Fyj, Fzj, Mxj, Myj, Mzj, GROUP ; 2nd line\n";

TEST(ReleaseBlock, WithoutReleasesThereIsNoBlock)
{
    EXPECT_EQ("", BlockOf({}));
}

TEST(ReleaseBlock, AHingeFreesBothBendingMomentsOfItsEnd)
{
    EXPECT_EQ(kHeader +
                  "  12, 000011, 0, 0, 0, 0, 0, 0\n"
                  "      000000, 0, 0, 0, 0, 0, 0,\n"
                  "  13, 000000, 0, 0, 0, 0, 0, 0\n"
                  "      000011, 0, 0, 0, 0, 0, 0,\n"
                  "\n",
              BlockOf({{12, 2}, {13, 3}}));
}

TEST(ReleaseBlock, AnElementHingedAtBothEndsHasTwoFreeLines)
{
    EXPECT_EQ(kHeader +
                  "  14, 000011, 0, 0, 0, 0, 0, 0\n"
                  "      000011, 0, 0, 0, 0, 0, 0,\n"
                  "\n",
              BlockOf({{14, 4}}));
}

TEST(ReleaseBlock, OtherCodesHaveNoLineAndDoNotDisturbTheOthers)
{
    EXPECT_EQ(kHeader +
                  "  2, 000011, 0, 0, 0, 0, 0, 0\n"
                  "      000000, 0, 0, 0, 0, 0, 0,\n"
                  "\n",
              BlockOf({{1, 1}, {2, 2}, {3, 5}, {4, 0}, {5, -2}, {6, 12}}));
    EXPECT_EQ(kHeader + "\n", BlockOf({{1, 5}}));
}

TEST(ReleaseBlock, AnElementMayHaveSeveralReleases)
{
    EXPECT_EQ(kHeader +
                  "  7, 000000, 0, 0, 0, 0, 0, 0\n"
                  "      000011, 0, 0, 0, 0, 0, 0,\n"
                  "  7, 000011, 0, 0, 0, 0, 0, 0\n"
                  "      000000, 0, 0, 0, 0, 0, 0,\n"
                  "\n",
              BlockOf({{7, 3}, {7, 2}}));
}

}  // namespace
}  // namespace satwecvt
