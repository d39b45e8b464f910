#include "manual/ManPage.h"

#include "commands/HelpText.h"
#include "manual/RoffText.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>
#include <utility>
#include <vector>

namespace satwecvt {

namespace {

using CFileText = std::pair<std::string_view, std::string_view>;

constexpr std::array kFiles = {
    CFileText{"satwecvt.msg",
              "the message log, in the working folder, unless --log names another; of a batch, each "
              "log lies beside its model and ends in .msg"},
    CFileText{"*.vkm", "the model text file, beside the structure file, unless --output names another"},
    CFileText{".NAME.satwecvt-XXXXXX",
              "what an output called NAME is called until it is whole; the last six letters "
              "vary. A program that was killed may leave one, which can be deleted"},
};

std::string Upper(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

std::string WithSmallInitial(std::string text)
{
    text.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(text.front())));
    return text;
}

std::string WithLargeInitial(std::string_view text)
{
    std::string sentence(text);
    sentence.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(sentence.front())));
    return sentence;
}

std::string Item(const std::string& term, std::string_view text)
{
    return ".TP\n" + term + "\n" + RoffText(text) + "\n";
}

std::string Paragraph(std::string_view text)
{
    return ".PP\n" + RoffText(text) + "\n";
}

std::string OptionItem(const COptionEntry& option)
{
    std::string term;
    for (const std::string& name : option.names) {
        term += (term.empty() ? "" : ", ") + RoffBold(name);
    }
    if (!option.value.empty()) {
        term += (term.empty() ? "" : " ") + RoffItalic(option.value);
    }
    return Item(term, WholeDescription(option));
}

std::string OptionItems(const CCommandEntry& command)
{
    std::string items;
    for (const auto* const options : {&command.arguments, &command.options}) {
        for (const COptionEntry& option : *options) {
            items += OptionItem(option);
        }
    }
    return items;
}

std::string Paragraphs(const CCommandEntry& command)
{
    std::string paragraphs;
    for (const std::string_view paragraph : command.text.paragraphs) {
        paragraphs += Paragraph(paragraph);
    }
    return paragraphs;
}

std::string Synopsis(const CProgramEntry& entry)
{
    const std::string& name = entry.program.name;
    std::string synopsis = ".SH SYNOPSIS\n";
    for (const CCommandEntry& command : entry.commands) {
        synopsis += RoffBold(name + " " + command.name) + " " + RoffText(UsageOf(command)) + "\n.br\n";
    }
    return synopsis + RoffBold(name) + " " + RoffText(UsageOf(entry.program)) + "\n";
}

std::string Commands(const CProgramEntry& entry)
{
    std::string section = ".SH COMMANDS\n";
    for (const CCommandEntry& command : entry.commands) {
        section += ".SS " + RoffText(command.name) + "\n" + RoffText(command.description) + ".\n" +
                   OptionItems(command) + Paragraphs(command);
    }
    return section;
}

std::string ExitStatus(const CProgramEntry& entry)
{
    std::string section = ".SH EXIT STATUS\n";
    for (const CCommandEntry& command : entry.commands) {
        section += ".SS Of " + RoffText(command.name) + "\n";
        if (!command.text.exitCodesNote.empty()) {
            section += RoffText(WithLargeInitial(command.text.exitCodesNote)) + ":\n";
        }
        for (const CExitCodeText& exitCode : command.text.exitCodes) {
            section += Item(RoffBold(std::to_string(static_cast<int>(exitCode.code))), exitCode.text);
        }
    }
    return section;
}

std::string Files()
{
    std::string section = ".SH FILES\n";
    for (const auto& [name, text] : kFiles) {
        section += Item(RoffItalic(name), text);
    }
    return section;
}

std::string Examples(const CProgramEntry& entry)
{
    std::string section = ".SH EXAMPLES\n.EX\n";
    for (const CCommandEntry& command : entry.commands) {
        for (const std::string_view example : command.text.examples) {
            section += RoffText(example) + "\n";
        }
    }
    return section + ".EE\n";
}

}  // namespace

std::string ManPage(const CProgramEntry& entry)
{
    const CCommandEntry& program = entry.program;
    return ".TH " + RoffText(Upper(program.name)) + " 1 \"\" \"" + RoffText(entry.version) +
           "\" \"User Commands\"\n.nh\n.ad l\n" + ".SH NAME\n" + RoffText(program.name) + " \\- " +
           RoffText(WithSmallInitial(program.description)) + "\n" + Synopsis(entry) + ".SH DESCRIPTION\n" +
           RoffText(program.description) + ".\n" + Paragraphs(program) + ".SH OPTIONS\n" + OptionItems(program) +
           Commands(entry) + ExitStatus(entry) + Files() + Examples(entry);
}

}  // namespace satwecvt
