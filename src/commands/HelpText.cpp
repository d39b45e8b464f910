#include "commands/HelpText.h"

#include "commands/FilledText.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace satwecvt {

namespace {

/// "  -o, --output MODEL      what it does": a term in a column of its own, where it fits into that.
std::string Row(const std::string& term, std::string_view text, std::size_t column)
{
    std::string row = "  " + term;
    if (row.size() + 2 > column) {
        row += '\n';
        row.append(column, ' ');
    }
    row.resize(std::max(row.size(), column), ' ');
    return row + FilledText(text, column, column) + "\n";
}

std::string OptionRow(const COptionEntry& option)
{
    constexpr std::size_t kColumn = 26;
    std::string term;
    for (const std::string& name : option.names) {
        term += (term.empty() ? "" : ", ") + name;
    }
    if (!option.value.empty()) {
        term += (term.empty() ? "" : " ") + option.value;
    }
    return Row(term, WholeDescription(option), kColumn);
}

std::string OptionRows(const char* title, const std::vector<COptionEntry>& options)
{
    std::string rows = options.empty() ? "" : title;
    for (const COptionEntry& option : options) {
        rows += OptionRow(option);
    }
    return rows;
}

std::string CommandRows(const std::vector<CCommandEntry>& commands)
{
    constexpr std::size_t kColumn = 26;
    std::string rows = commands.empty() ? "" : "\nCommands:\n";
    for (const CCommandEntry& command : commands) {
        rows += Row(command.name, command.description, kColumn);
    }
    return rows;
}

std::string Paragraphs(const CCommandText& text)
{
    std::string paragraphs;
    for (const std::string_view paragraph : text.paragraphs) {
        paragraphs += "\n" + FilledText(paragraph, 0, 0) + "\n";
    }
    return paragraphs;
}

std::string Examples(const CCommandText& text)
{
    std::string examples = "\nExamples:\n";
    for (const std::string_view example : text.examples) {
        examples.append("  ").append(example).append("\n");
    }
    return examples;
}

std::string ExitCodes(const CCommandText& text)
{
    constexpr std::size_t kColumn = 7;
    std::string codes = text.exitCodes.empty() ? "" : "\nExit codes";
    if (!text.exitCodesNote.empty()) {
        codes.append(", ").append(text.exitCodesNote);
    }
    codes += text.exitCodes.empty() ? "" : ":\n";
    for (const CExitCodeText& exitCode : text.exitCodes) {
        codes += Row(std::to_string(static_cast<int>(exitCode.code)), exitCode.text, kColumn);
    }
    return codes;
}

}  // namespace

std::string UsageOf(const CCommandEntry& command)
{
    std::string usage = "[OPTIONS]";
    for (const COptionEntry& argument : command.arguments) {
        const std::string name = argument.value + (argument.isRepeated ? "..." : "");
        usage += argument.isRequired ? " " + name : " [" + name + "]";
    }
    return usage;
}

std::string HelpText(const CCommandEntry& command, const std::vector<CCommandEntry>& commands, const std::string& name)
{
    return command.description + "\nUsage: " + name + " " + UsageOf(command) + (commands.empty() ? "" : " COMMAND") +
           "\n" + OptionRows("\nArguments:\n", command.arguments) + OptionRows("\nOptions:\n", command.options) +
           CommandRows(commands) + Paragraphs(command.text) + Examples(command.text) + ExitCodes(command.text);
}

}  // namespace satwecvt
