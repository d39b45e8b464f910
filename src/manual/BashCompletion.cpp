#include "manual/Completions.h"
#include "manual/ShellText.h"
#include "manual/ValueKind.h"

#include <string_view>
#include <vector>

namespace satwecvt {

namespace {

/// What completes a value.
std::string ActionOf(std::string_view value)
{
    switch (ValueKindOf(value)) {
    case EValueKind::File:
        return "_filedir";
    case EValueKind::SatFile:
        return "_filedir sat";
    case EValueKind::Folder:
        return "_filedir -d";
    case EValueKind::None:
        break;
    }
    return ":";
}

std::string WordsAction(const std::string& words)
{
    return "COMPREPLY=($(compgen -W " + ShellQuoted(words) + " -- \"$cur\"))";
}

std::string Joined(const std::vector<std::string>& words, std::string_view separator)
{
    std::string joined;
    for (const std::string& word : words) {
        joined.append(joined.empty() ? "" : separator).append(word);
    }
    return joined;
}

/// Behind an option that takes a value.
std::string ValueCases(const CCommandEntry& command, const std::string& word)
{
    std::string cases;
    for (const COptionEntry& option : command.options) {
        if (!option.value.empty()) {
            std::vector<std::string> patterns;
            for (const std::string& name : option.names) {
                patterns.emplace_back(word).append(":").append(name);
            }
            cases += "    " + Joined(patterns, " | ") + ") " + ActionOf(option.value) + "; return ;;\n";
        }
    }
    return cases;
}

std::string OptionCase(const CCommandEntry& command, const std::string& word)
{
    std::vector<std::string> names;
    for (const COptionEntry& option : command.options) {
        names.insert(names.end(), option.names.begin(), option.names.end());
    }
    return "    " + word + ":-*) " + WordsAction(Joined(names, " ")) + " ;;\n";
}

std::string ArgumentCase(const CCommandEntry& command)
{
    const std::string action = command.arguments.empty() ? ":" : ActionOf(command.arguments.front().value);
    return "    " + command.name + ":*) " + action + " ;;\n";
}

}  // namespace

std::string BashCompletion(const CProgramEntry& entry)
{
    const std::string& name = entry.program.name;
    std::vector<std::string> commands;
    std::string valueCases = ValueCases(entry.program, "");
    std::string cases = OptionCase(entry.program, "");
    for (const CCommandEntry& command : entry.commands) {
        commands.push_back(command.name);
        valueCases += ValueCases(command, command.name);
        cases += OptionCase(command, command.name) + ArgumentCase(command);
    }
    return "# How bash completes " + name + "; written by its build from the table of its options.\n\n_" + name +
           "()\n{\n"
           "    local cur prev words cword split\n"
           "    _init_completion -s || return\n"
           "    local command=\n"
           "    ((cword > 1)) && command=${words[1]}\n\n"
           "    case $command:$prev in\n" +
           valueCases + "    esac\n    $split && return\n\n    case $command:$cur in\n" + cases + "    :*) " +
           WordsAction(Joined(commands, " ")) + " ;;\n    esac\n} &&\n    complete -F _" + name + " " + name + "\n";
}

}  // namespace satwecvt
