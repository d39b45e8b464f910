#include "manual/Completions.h"
#include "manual/ShellText.h"
#include "manual/ValueKind.h"

#include <string_view>

namespace satwecvt {

namespace {

/// What is offered for a value; files of any kind are an option of fish of its own.
std::string OfferOf(EValueKind kind, const std::string& program)
{
    switch (kind) {
    case EValueKind::SatFile:
        return " -a '(__" + program + "_sat_files)'";
    case EValueKind::Folder:
        return " -a '(__fish_complete_directories)'";
    case EValueKind::File:
    case EValueKind::None:
        break;
    }
    return "";
}

std::string OptionLine(const std::string& start, const COptionEntry& option, const std::string& program)
{
    std::string line = start;
    for (const std::string& name : option.names) {
        line += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    }
    if (!option.value.empty()) {
        const EValueKind kind = ValueKindOf(option.value);
        line += kind == EValueKind::File ? " -r -F" : " -x" + OfferOf(kind, program);
    }
    return line + " -d " + FishQuoted(option.description) + "\n";
}

/// The options and arguments of a command, behind what all its lines start with.
std::string CommandLines(const std::string& start, const CCommandEntry& command, const std::string& program)
{
    std::string lines;
    for (const COptionEntry& option : command.options) {
        lines += OptionLine(start, option, program);
    }
    std::string last;
    for (const COptionEntry& argument : command.arguments) {
        const EValueKind kind = ValueKindOf(argument.value);
        const std::string offer = kind == EValueKind::File ? " -F" : OfferOf(kind, program);
        if (offer != last) {
            lines += start + offer + "\n";
        }
        last = offer;
    }
    return lines;
}

/// fish offers files of other suffixes, too, behind those that are asked for; here only folders and .sat, or .SAT,
/// stay.
std::string Functions(const std::string& program)
{
    return "function __" + program +
           "_command -d 'Whether the command is this one; without an argument: whether none is given yet'\n"
           "    set -l words (commandline -opc)\n"
           "    test \"$words[2]\" = \"$argv[1]\"\n"
           "end\n\n"
           "function __" +
           program +
           "_sat_files\n"
           "    __fish_complete_suffix .sat | string match -ri '^[^\\t]*(?:\\.sat|/)(?:\\t.*)?$'\n"
           "end\n\n";
}

}  // namespace

std::string FishCompletion(const CProgramEntry& entry)
{
    const std::string& name = entry.program.name;
    const std::string start = "complete -c " + name;
    const std::string none = start + " -n __" + name + "_command";
    std::string lines = "# How fish completes " + name + "; written by its build from the table of its options.\n\n" +
                        Functions(name) + start + " -f\n" + CommandLines(none, entry.program, name);
    for (const CCommandEntry& command : entry.commands) {
        lines += none + " -a " + command.name + " -d " + FishQuoted(command.description) + "\n";
    }
    const std::string inside = start + " -n '__" + name + "_command ";
    for (const CCommandEntry& command : entry.commands) {
        lines += CommandLines(std::string(inside).append(command.name).append("'"), command, name);
    }
    return lines;
}

}  // namespace satwecvt
