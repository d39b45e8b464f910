#include "modelfile/ModelTexts_test.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace satwecvt {
namespace {

TEST(SupportBlock, SupportsNameTheirNodes)
{
    const CModelFile model = ReadModelFile(ModelTextOf({.supports = "  12, 111111\n  -5, 111111\n"}));
    ASSERT_EQ(2U, model.supports.size());
    EXPECT_EQ(12, model.supports[0].node);
    EXPECT_EQ(-5, model.supports[1].node);
}

TEST(SupportBlock, ALineOfAnotherFormIsRefused)
{
    for (const std::string line : {"  1, 111000", "  1, 1111111", "  1", "  1, 111111,", "1, 111111", "  x, 111111"}) {
        EXPECT_EQ("line 10: no support is '" + line + "'", ComplaintAbout(ModelTextOf({.supports = line + "\n"})));
    }
}

TEST(ReleaseBlock, AnEndIsAHingeOrNot)
{
    const CModelFile model = ReadModelFile(ModelTextOf({.releases = "  4, 000011, 0, 0, 0, 0, 0, 0\n"
                                                                    "      000000, 0, 0, 0, 0, 0, 0,\n"
                                                                    "  5, 000000, 0, 0, 0, 0, 0, 0\n"
                                                                    "      000011, 0, 0, 0, 0, 0, 0,\n"
                                                                    "  -6, 000011, 0, 0, 0, 0, 0, 0\n"
                                                                    "      000011, 0, 0, 0, 0, 0, 0,\n"}));
    ASSERT_EQ(3U, model.releases.size());
    EXPECT_EQ(4, model.releases[0].element);
    EXPECT_TRUE(model.releases[0].isHingeAtI);
    EXPECT_FALSE(model.releases[0].isHingeAtJ);
    EXPECT_EQ(5, model.releases[1].element);
    EXPECT_FALSE(model.releases[1].isHingeAtI);
    EXPECT_TRUE(model.releases[1].isHingeAtJ);
    EXPECT_EQ(-6, model.releases[2].element);
    EXPECT_TRUE(model.releases[2].isHingeAtI);
    EXPECT_TRUE(model.releases[2].isHingeAtJ);
}

TEST(ReleaseBlock, ALineOfAnotherFormIsRefused)
{
    const std::string first = "  4, 000011, 0, 0, 0, 0, 0, 0\n";
    for (const std::string line :
         {"  4, 000011, 0, 0, 0, 0, 0", "  4, 000011, 0, 0, 0, 0, 0, 0,", "  4, 000001, 0, 0, 0, 0, 0, 0",
          "  4, 000011, 0, 0, 0, 0, 0, 1", "      000011, 0, 0, 0, 0, 0, 0,", "  x, 000011, 0, 0, 0, 0, 0, 0"}) {
        EXPECT_EQ("line 15: no release is '" + line + "'", ComplaintAbout(ModelTextOf({.releases = line + "\n"})));
    }
    for (const std::string line :
         {"", "      000011, 0, 0, 0, 0, 0, 0", "      000001, 0, 0, 0, 0, 0, 0,", "  000011, 0, 0, 0, 0, 0, 0,",
          "      000011, 0, 0, 0, 0, 0, 0, ", "  4, 000011, 0, 0, 0, 0, 0, 0"}) {
        EXPECT_EQ("line 16: no release is '" + line + "'",
                  ComplaintAbout(ModelTextOf({.releases = first + line + "\n"})));
    }
}

TEST(ReleaseBlock, TheHeaderCanStandAlone)
{
    const std::string block = BlockText("*FRAME-RLS    ; Beam End Release", 2, "");
    EXPECT_TRUE(ReadModelFile(kVersionText + kNodesText + kSupportsText + block + kLoadCasesText).releases.empty());
}

TEST(OffsetBlock, AnOffsetHasSixValues)
{
    const CModelFile model = ReadModelFile(ModelTextOf({.offsets = "  3, GLOBAL, 1, -2.5, 3, 4e-06, 5, 6,  \n"}));
    ASSERT_EQ(1U, model.offsets.size());
    EXPECT_EQ(3, model.offsets[0].element);
    EXPECT_EQ((std::array<double, 6>{1, -2.5, 3, 4e-6, 5, 6}), model.offsets[0].values);
}

TEST(OffsetBlock, ALineOfAnotherFormIsRefused)
{
    for (const std::string line :
         {"  3, GLOBAL, 1, 2, 3, 4, 5,  ", "  3, GLOBAL, 1, 2, 3, 4, 5, 6", "  3, GLOBAL, 1, 2, 3, 4, 5, 6, ",
          "  3, GLOBAL, 1, 2, 3, 4, 5, 6,   ", "  3, ELEMENT, 1, 2, 3, 4, 5, 6,  ",
          "  3, GLOBAL, 1, 2, 3, 4, 5, 6, 7,  ", "  3, GLOBAL, 1, 2, 3, 4, 5, six,  "}) {
        EXPECT_EQ("line 15: no offset is '" + line + "'", ComplaintAbout(ModelTextOf({.offsets = line + "\n"})));
    }
}

}  // namespace
}  // namespace satwecvt
