#include "manual/RoffText.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

TEST(RoffText, PlainTextStays)
{
    EXPECT_EQ("", RoffText(""));
    EXPECT_EQ("a file (.sat), its \nname", RoffText("a file (.sat), its \nname"));
}

TEST(RoffText, SignsThatRoffOrTypographyWouldTakeAreEscaped)
{
    EXPECT_EQ(R"(\-\-json)", RoffText("--json"));
    EXPECT_EQ(R"(C:\enew)", RoffText("C:\\new"));
    EXPECT_EQ(R"(it\(aqs \(dqso\(dq \(ga\(ha\(ti)", RoffText("it's \"so\" `^~"));
}

TEST(RoffText, NoLineStartsARequest)
{
    EXPECT_EQ(R"(\&.vkm.bak)", RoffText(".vkm.bak"));
    EXPECT_EQ(R"(\(aqtis)", RoffText("'tis"));
}

TEST(RoffText, FontsEndWhereTheyShould)
{
    EXPECT_EQ(R"(\fB\-o\fR)", RoffBold("-o"));
    EXPECT_EQ(R"(\fI\&.NAME\fR)", RoffItalic(".NAME"));
}

}  // namespace
}  // namespace satwecvt
