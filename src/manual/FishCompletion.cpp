#include "manual/Completions.h"
#include "manual/ShellText.h"
#include "manual/ValueKind.h"

#include <string_view>

namespace satwecvt {

namespace {

/// What completes the value of an option.
std::string ValueOption(std::string_view value)
{
    switch (ValueKindOf(value)) {
    case EValueKind::File:
        return " -r -F";
    case EValueKind::SatFile:
        return " -x -a '(__satwecvt_sat_files)'";
    case EValueKind::Folder:
        return " -x -a '(__fish_complete_directories)'";
    case EValueKind::None:
        break;
    }
    return " -x";
}

/// What completes an argument.
std::string ArgumentOption(std::string_view value)
{
    switch (ValueKindOf(value)) {
    case EValueKind::File:
        return " -F";
    case EValueKind::SatFile:
        return " -a '(__satwecvt_sat_files)'";
    case EValueKind::Folder:
        return " -a '(__fish_complete_directories)'";
    case EValueKind::None:
        break;
    }
    return "";
}

std::string OptionLine(const std::string& start, const COptionEntry& option)
{
    std::string line = start;
    for (const std::string& name : option.names) {
        line += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    }
    return line + (option.value.empty() ? "" : ValueOption(option.value)) + " -d " + FishQuoted(option.description) +
           "\n";
}

std::string CommandLines(const std::string& start, const CCommandEntry& command)
{
    std::string lines;
    for (const COptionEntry& option : command.options) {
        lines += OptionLine(start, option);
    }
    std::string last;
    for (const COptionEntry& argument : command.arguments) {
        const std::string option = ArgumentOption(argument.value);
        if (option != last) {
            lines += start + option + "\n";
        }
        last = option;
    }
    return lines;
}

constexpr std::string_view kFunctions = R"(
function __satwecvt_command -d 'Whether the command is this one; without an argument: whether none is given yet'
    set -l words (commandline -opc)
    test "$words[2]" = "$argv[1]"
end

function __satwecvt_sat_files
    __fish_complete_suffix .sat | string match -ri '^[^\t]*(?:\.sat|/)(?:\t.*)?$'
end

)";

}  // namespace

std::string FishCompletion(const CProgramEntry& entry)
{
    const std::string& name = entry.program.name;
    const std::string none = "complete -c " + name + " -n __satwecvt_command";
    std::string lines = "# How fish completes " + name + "; written by its build from the table of its options.\n";
    lines.append(kFunctions).append("complete -c " + name + " -f\n");
    lines += CommandLines(none, entry.program);
    for (const CCommandEntry& command : entry.commands) {
        lines += none + " -a " + command.name + " -d " + FishQuoted(command.description) + "\n";
    }
    for (const CCommandEntry& command : entry.commands) {
        lines += CommandLines("complete -c " + name + " -n '__satwecvt_command " + command.name + "'", command);
    }
    return lines;
}

}  // namespace satwecvt
