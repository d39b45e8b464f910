#include "commands/FilledText.h"

#include <gtest/gtest.h>

#include <string>

namespace satwecvt {
namespace {

TEST(FilledText, ShortTextsAreOneLine)
{
    EXPECT_EQ("", FilledText("", 0, 0));
    EXPECT_EQ("one", FilledText("one", 0, 4));
    EXPECT_EQ("one two", FilledText(" one  two ", 0, 4));
}

TEST(FilledText, ALineEndsAtOneHundredColumns)
{
    const std::string fifty(50, 'a');
    const std::string fortyNine(49, 'b');
    EXPECT_EQ(fifty + ' ' + fortyNine, FilledText(fifty + ' ' + fortyNine, 0, 0));
    EXPECT_EQ(fifty + "\nb" + fortyNine, FilledText(fifty + " b" + fortyNine, 0, 0));
}

TEST(FilledText, TheFirstLineStartsAtItsColumnAndOthersAreIndented)
{
    const std::string forty(40, 'a');
    EXPECT_EQ(forty + "\n   b", FilledText(forty + " b", 59, 3));
    EXPECT_EQ(forty + " b", FilledText(forty + " b", 58, 3));
}

TEST(FilledText, AWordLongerThanALineHasOneOfItsOwn)
{
    const std::string word(120, 'a');
    EXPECT_EQ("x\n  " + word + "\n  y", FilledText("x " + word + " y", 0, 2));
    EXPECT_EQ(word, FilledText(word, 10, 2));
}

}  // namespace
}  // namespace satwecvt
