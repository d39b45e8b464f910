#include "commands/CommandEntry.h"

#include "commands/CommandTable.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace satwecvt {
namespace {

using CNames = std::vector<std::string>;

TEST(CommandEntry, AFlagTakesNoValue)
{
    CLI::App app("Looks", "look");
    app.set_help_flag();
    bool isDeep = false;
    app.add_flag("-d,--deep", isDeep, "look below");
    const CCommandEntry entry = EntryOf(app);
    EXPECT_EQ("look", entry.name);
    EXPECT_EQ("Looks", entry.description);
    ASSERT_EQ(1U, entry.options.size());
    EXPECT_EQ((CNames{"-d", "--deep"}), entry.options[0].names);
    EXPECT_EQ("", entry.options[0].value);
    EXPECT_EQ("look below", entry.options[0].description);
}

TEST(CommandEntry, ArgumentsHaveNoNamesButTheirValue)
{
    CLI::App app;
    app.set_help_flag();
    std::string first;
    std::vector<std::string> others;
    app.add_option("FIRST", first)->required();
    app.add_option("OTHER", others);
    const CCommandEntry entry = EntryOf(app);
    ASSERT_EQ(2U, entry.arguments.size());
    EXPECT_EQ(CNames{}, entry.arguments[0].names);
    EXPECT_EQ("FIRST", entry.arguments[0].value);
    EXPECT_TRUE(entry.arguments[0].isRequired);
    EXPECT_FALSE(entry.arguments[0].isRepeated);
    EXPECT_EQ("OTHER", entry.arguments[1].value);
    EXPECT_FALSE(entry.arguments[1].isRequired);
    EXPECT_TRUE(entry.arguments[1].isRepeated);
}

TEST(CommandEntry, ExclusionsStandOnBothSidesInTheOrderOfTheTable)
{
    CLI::App app;
    app.set_help_flag();
    std::string values[3];
    CLI::Option* const a = app.add_option("-a,--first", values[0])->type_name("A");
    CLI::Option* const b = app.add_option("-b", values[1])->type_name("B");
    app.add_option("--third", values[2])->type_name("C")->excludes(b)->excludes(a);
    const CCommandEntry entry = EntryOf(app);
    ASSERT_EQ(3U, entry.options.size());
    EXPECT_EQ(CNames{"--third"}, entry.options[0].excludes);
    EXPECT_EQ(CNames{"--third"}, entry.options[1].excludes);
    EXPECT_EQ((CNames{"--first", "-b"}), entry.options[2].excludes);
    EXPECT_EQ("B", entry.options[1].value);
}

TEST(CommandEntry, TheWholeDescriptionTellsDefaultAndExclusions)
{
    COptionEntry option;
    option.description = "a name";
    EXPECT_EQ("a name", WholeDescription(option));
    option.defaultValue = "load.sat";
    EXPECT_EQ("a name; otherwise load.sat", WholeDescription(option));
    option.excludes = {"--list", "FOLDER"};
    EXPECT_EQ("a name; otherwise load.sat; not with --list, FOLDER", WholeDescription(option));
}

TEST(CommandEntry, EveryCommandOfTheProgramHasATextOfItsOwn)
{
    const CProgramEntry entry = ProgramEntry();
    EXPECT_EQ("satwecvt", entry.program.name);
    EXPECT_TRUE(entry.program.text.exitCodes.empty());
    std::vector<std::string> names;
    for (const CCommandEntry& command : entry.commands) {
        EXPECT_FALSE(command.text.exitCodes.empty()) << command.name;
        names.push_back(command.name);
    }
#ifdef SATWECVT_VIEW
    EXPECT_EQ((std::vector<std::string>{"convert", "check", "view", "batch"}), names);
#else
    EXPECT_EQ((std::vector<std::string>{"convert", "check", "batch"}), names);
#endif
}

}  // namespace
}  // namespace satwecvt
