#include "commands/HelpText.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

CCommandEntry Look()
{
    CCommandEntry look;
    look.name = "look";
    look.description = "Look at a file";
    look.arguments = {{{}, "FILE", "what to look at", "", {}, true, false},
                      {{}, "OTHER", "more of them", "", {"--list"}, false, true}};
    look.options = {{{"-d", "--deep"}, "", "look below", "", {}, false, false},
                    {{"--a-long-name-of-an-option"}, "N", "how often", "2", {}, false, false}};
    look.text.paragraphs = {"It looks."};
    look.text.examples = {"see look a"};
    return look;
}

TEST(HelpText, OfACommandHasItsUsageAndItsOptions)
{
    EXPECT_EQ(R"(Look at a file
Usage: see look [OPTIONS] FILE [OTHER...]

Arguments:
  FILE                    what to look at
  OTHER                   more of them; not with --list

Options:
  -d, --deep              look below
  --a-long-name-of-an-option N
                          how often; otherwise 2

It looks.

Examples:
  see look a
)",
              HelpText(Look(), {}, "see look"));
}

TEST(HelpText, OfTheProgramListsItsCommands)
{
    CCommandEntry see;
    see.description = "Sees";
    see.text.examples = {"see look a"};
    EXPECT_EQ(R"(Sees
Usage: see [OPTIONS] COMMAND

Commands:
  look                    Look at a file

Examples:
  see look a
)",
              HelpText(see, {Look()}, "see"));
}

TEST(HelpText, ExitCodesStandInAColumn)
{
    CCommandEntry look;
    look.text.exitCodes = {{EExitCode::Written, "well"}, {EExitCode::Cancelled, "cancelled"}};
    EXPECT_TRUE(HelpText(look, {}, "see look").ends_with("\nExit codes:\n  0    well\n  130  cancelled\n"));
    look.text.exitCodesNote = "the best";
    EXPECT_TRUE(HelpText(look, {}, "see look").ends_with("\nExit codes, the best:\n  0    well\n  130  cancelled\n"));
}

}  // namespace
}  // namespace satwecvt
