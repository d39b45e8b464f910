#include "commands/CommandEntry.h"

#include "commands/CommandTable.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace satwecvt {

namespace {

std::vector<std::string> NamesOf(const CLI::Option& option)
{
    std::vector<std::string> names;
    for (const std::string& letter : option.get_snames()) {
        names.push_back("-" + letter);
    }
    for (const std::string& word : option.get_lnames()) {
        names.push_back("--" + word);
    }
    return names;
}

/// In the order of the table: CLI11 keeps them in one that changes from run to run.
std::vector<std::string> ExcludesOf(const CLI::App& command, const CLI::Option& option)
{
    std::vector<std::string> names;
    for (CLI::Option* const other : option.get_excludes()) {
        names.push_back(other->get_name());
    }
    std::vector<std::string> ordered;
    for (const CLI::Option* const other : command.get_options()) {
        if (std::find(names.begin(), names.end(), other->get_name()) != names.end()) {
            ordered.push_back(other->get_name());
        }
    }
    return ordered;
}

COptionEntry OptionEntry(const CLI::App& command, const CLI::Option& option)
{
    const bool takesValue = option.get_type_size() != 0;
    COptionEntry entry;
    entry.names = NamesOf(option);
    entry.value = option.get_positional() ? option.get_name(true) : takesValue ? option.get_type_name() : "";
    entry.description = option.get_description();
    entry.defaultValue = option.get_default_str();
    entry.excludes = ExcludesOf(command, option);
    entry.isRequired = option.get_required();
    entry.isRepeated = option.get_expected_max() >= CLI::detail::expected_max_vector_size;
    return entry;
}

}  // namespace

CCommandEntry EntryOf(const CLI::App& command)
{
    CCommandEntry entry;
    entry.name = command.get_name();
    entry.description = command.get_description();
    for (const CLI::Option* const option : command.get_options()) {
        (option->get_positional() ? entry.arguments : entry.options).push_back(OptionEntry(command, *option));
    }
    entry.text = TextOf(entry.name);
    return entry;
}

CProgramEntry ProgramEntry()
{
    const CCommandTable table;
    CProgramEntry entry;
    entry.program = EntryOf(table.app);
    entry.version = table.app.get_name() + " " SATWECVT_VERSION;
    for (const CLI::App* const command : table.app.get_subcommands({})) {
        entry.commands.push_back(EntryOf(*command));
    }
    return entry;
}

std::string WholeDescription(const COptionEntry& option)
{
    std::string description = option.description;
    if (!option.defaultValue.empty()) {
        description += "; otherwise " + option.defaultValue;
    }
    const char* separator = "; not with ";
    for (const std::string& name : option.excludes) {
        description += separator + name;
        separator = ", ";
    }
    return description;
}

}  // namespace satwecvt
