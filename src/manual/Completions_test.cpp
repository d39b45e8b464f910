#include "manual/Completions.h"

#include <gtest/gtest.h>

#include <string>

namespace satwecvt {
namespace {

/// A program with texts that no shell takes as they stand.
CProgramEntry See()
{
    COptionEntry log{{"-l", "--log"}, "FILE", R"(what's [it]: "a\b")", "", {"FOLDER"}, false, false};
    COptionEntry times{{"--times"}, "N", "how often", "", {}, false, false};
    COptionEntry folder{{}, "FOLDER", "where", "", {"--log"}, false, true};
    COptionEntry first{{}, "STRUCTURE", "what", "", {}, true, false};
    CProgramEntry see;
    see.program.name = "see";
    see.commands.resize(2);
    see.commands[0] = {"look", R"(It's: "a\b")", {folder}, {log, times}, {}};
    see.commands[1] = {"read", "Read", {first, first}, {}, {}};
    return see;
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

TEST(BashCompletion, AValueIsCompletedByItsKind)
{
    const std::string bash = BashCompletion(See());
    EXPECT_TRUE(Contains(bash, "\n    look:-l | look:--log) _filedir; return ;;\n")) << bash;
    EXPECT_TRUE(Contains(bash, "\n    look:--times) :; return ;;\n")) << bash;
}

TEST(BashCompletion, OptionsArgumentsAndCommandsAreOffered)
{
    const std::string bash = BashCompletion(See());
    EXPECT_TRUE(Contains(bash, "look:-*) COMPREPLY=($(compgen -W '-l --log --times' -- \"$cur\")) ;;\n")) << bash;
    EXPECT_TRUE(Contains(bash, "look:*) _filedir -d ;;\n")) << bash;
    EXPECT_TRUE(Contains(bash, "read:*) _filedir sat ;;\n")) << bash;
    EXPECT_TRUE(Contains(bash, ":*) COMPREPLY=($(compgen -W 'look read' -- \"$cur\")) ;;\n")) << bash;
}

TEST(ZshCompletion, SpecialSignsAreEscapedForZshAndThenForTheShell)
{
    const std::string zsh = ZshCompletion(See());
    EXPECT_TRUE(Contains(zsh, R"('look:It'\''s\: "a\\b"')")) << zsh;
    EXPECT_TRUE(Contains(zsh, R"('(-l --log *)--log=[what'\''s \[it\]\: "a\\b"]:FILE:_files')")) << zsh;
}

TEST(ZshCompletion, ArgumentsHavePlacesAndExclusions)
{
    const std::string zsh = ZshCompletion(See());
    EXPECT_TRUE(Contains(zsh, "'(-l --log)*:FOLDER:_files -/'")) << zsh;
    EXPECT_TRUE(Contains(zsh, "'1:STRUCTURE:_files -g \"*.(#i)sat\"'")) << zsh;
    EXPECT_TRUE(Contains(zsh, "'2:STRUCTURE:_files -g \"*.(#i)sat\"'")) << zsh;
    EXPECT_TRUE(Contains(zsh, "'(--times)--times=[how often]:N: '")) << zsh;
}

TEST(FishCompletion, EveryLineBelongsToItsCommand)
{
    const std::string fish = FishCompletion(See());
    const std::string look = "\ncomplete -c see -n '__see_command look'";
    EXPECT_TRUE(Contains(fish, "\ncomplete -c see -n __see_command -a look -d 'It\\'s: \"a\\\\b\"'\n")) << fish;
    EXPECT_TRUE(Contains(fish, look + R"( -s l -l log -r -F -d 'what\'s [it]: "a\\b"')" + "\n")) << fish;
    EXPECT_TRUE(Contains(fish, look + " -l times -x -d 'how often'\n")) << fish;
    EXPECT_TRUE(Contains(fish, look + " -a '(__fish_complete_directories)'\n")) << fish;
}

TEST(FishCompletion, ArgumentsOfOneKindAreToldOnce)
{
    const std::string fish = FishCompletion(See());
    const std::string line = "complete -c see -n '__see_command read' -a '(__see_sat_files)'\n";
    EXPECT_TRUE(fish.ends_with(line)) << fish;
    EXPECT_EQ(fish.size() - line.size(), fish.find(line)) << fish;
}

}  // namespace
}  // namespace satwecvt
