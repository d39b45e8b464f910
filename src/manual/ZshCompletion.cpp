#include "manual/Completions.h"
#include "manual/ShellText.h"
#include "manual/ValueKind.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

namespace satwecvt {

namespace {

/// ":MODEL:_files": what a value is called, and what completes it.
std::string MessageAndAction(std::string_view value)
{
    const std::string message = ":" + Escaped(value, "\\:") + ":";
    switch (ValueKindOf(value)) {
    case EValueKind::File:
        return message + "_files";
    case EValueKind::SatFile:
        return message + "_files -g \"*.(#i)sat\"";
    case EValueKind::Folder:
        return message + "_files -/";
    case EValueKind::None:
        break;
    }
    return message + " ";
}

/// By what a list of exclusions names an argument: "*" is one that is repeated.
std::string PlaceOf(const CCommandEntry& command, std::size_t argument)
{
    return command.arguments[argument].isRepeated ? "*" : std::to_string(argument + 1);
}

/// All names of what is excluded under one of them.
std::vector<std::string> AllNamesOf(const CCommandEntry& command, const std::string& name)
{
    for (std::size_t place = 0; place < command.arguments.size(); ++place) {
        if (command.arguments[place].value == name) {
            return {PlaceOf(command, place)};
        }
    }
    for (const COptionEntry& option : command.options) {
        if (std::find(option.names.begin(), option.names.end(), name) != option.names.end()) {
            return option.names;
        }
    }
    return {};
}

/// "(-o --output)": what is no longer offered beside it, itself included.
std::string Exclusions(const CCommandEntry& command, const COptionEntry& option)
{
    std::vector<std::string> names = option.names;
    for (const std::string& excluded : option.excludes) {
        const std::vector<std::string> others = AllNamesOf(command, excluded);
        names.insert(names.end(), others.begin(), others.end());
    }
    std::string exclusions;
    for (const std::string& name : names) {
        exclusions += (exclusions.empty() ? "(" : " ") + name;
    }
    return exclusions.empty() ? "" : exclusions + ")";
}

/// The signs by which a value may stand in the option's own word: "-oMODEL", "--output=MODEL".
std::string ValueSign(const COptionEntry& option, const std::string& name)
{
    return option.value.empty() ? "" : name.starts_with("--") ? "=" : "+";
}

std::string Argument(const std::string& text)
{
    return " \\\n            " + ShellQuoted(text);
}

std::string ArgumentsOf(const CCommandEntry& command)
{
    std::string arguments;
    for (const COptionEntry& option : command.options) {
        for (const std::string& name : option.names) {
            arguments += Argument(Exclusions(command, option) + name + ValueSign(option, name) + "[" +
                                  Escaped(option.description, "\\[]:") + "]" +
                                  (option.value.empty() ? "" : MessageAndAction(option.value)));
        }
    }
    for (std::size_t place = 0; place < command.arguments.size(); ++place) {
        const COptionEntry& argument = command.arguments[place];
        arguments +=
            Argument(Exclusions(command, argument) + PlaceOf(command, place) + MessageAndAction(argument.value));
    }
    return arguments;
}

std::string CommandCase(const CCommandEntry& command)
{
    return "        " + command.name + ")\n            _arguments -s -S" + ArgumentsOf(command) + "\n            ;;\n";
}

}  // namespace

std::string ZshCompletion(const CProgramEntry& entry)
{
    const std::string& name = entry.program.name;
    std::string descriptions;
    std::string cases;
    for (const CCommandEntry& command : entry.commands) {
        descriptions += "        " + ShellQuoted(command.name + ":" + Escaped(command.description, "\\:")) + "\n";
        cases += CommandCase(command);
    }
    return "#compdef " + name + "\n# How zsh completes " + name +
           "; written by its build from the table of its options.\n\n_" + name +
           "() {\n"
           "    local curcontext=$curcontext state line\n"
           "    local -A opt_args\n"
           "    local -a commands=(\n" +
           descriptions + "    )\n    _arguments -C -s -S" + ArgumentsOf(entry.program) + Argument("1: :->command") +
           Argument("*:: :->arguments") +
           " && return\n\n"
           "    case $state in\n"
           "    command) _describe -t commands command commands ;;\n"
           "    arguments)\n"
           "        curcontext=${curcontext%:*:*}:" +
           name +
           "-$words[1]:\n"
           "        case $words[1] in\n" +
           cases + "        esac\n        ;;\n    esac\n}\n\n_" + name + " \"$@\"\n";
}

}  // namespace satwecvt
