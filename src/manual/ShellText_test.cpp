#include "manual/ShellText.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

TEST(ShellText, NothingButAQuoteIsSpecialForBashAndZsh)
{
    EXPECT_EQ("''", ShellQuoted(""));
    EXPECT_EQ(R"('$a "b" \ `c`')", ShellQuoted(R"($a "b" \ `c`)"));
    EXPECT_EQ(R"('it'\''s')", ShellQuoted("it's"));
}

TEST(ShellText, FishEscapesQuoteAndBackslash)
{
    EXPECT_EQ(R"('$a "b"')", FishQuoted(R"($a "b")"));
    EXPECT_EQ(R"('it\'s \\')", FishQuoted("it's \\"));
}

TEST(ShellText, OnlyTheNamedCharactersAreEscaped)
{
    EXPECT_EQ(R"(a\:b[c])", Escaped("a:b[c]", ":"));
    EXPECT_EQ("", Escaped("", ":"));
}

}  // namespace
}  // namespace satwecvt
