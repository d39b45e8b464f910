#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace satwecvt {

namespace {

constexpr const char* kProgramFooter =
    "\nExample:\n"
    "  satwecvt convert tower.sat tower_load.sat\n";

constexpr const char* kConvertFooter =
    "\nThe model text file is written beside the structure file, under its name with the extension .vkm; the message\n"
    "log satwecvt.msg into the working folder. A summary goes to stdout, messages and progress to stderr.\n"
    "\nExamples:\n"
    "  satwecvt convert tower.sat tower_load.sat\n"
    "  satwecvt convert -q --json report.json tower.sat tower_load.sat\n"
    "  satwecvt convert --json - tower.sat tower_load.sat | jq .counts\n"
    "\nExit codes:\n"
    "  0    the model text file was written\n"
    "  1    not converted: an input could not be opened or read, or its counts do not fit its records; the message\n"
    "       says which input, and where\n"
    "  2    wrong usage\n"
    "  4    the model text file, the message log or the report could not be written completely\n"
    "  130  cancelled with Ctrl-C; nothing was written\n";

void AddConvertCommand(CLI::App& app, CConvertOptions& options)
{
    CLI::App* convert = app.add_subcommand("convert", "Convert a structure file and a load file to a model text file");
    convert->add_option("STRUCTURE", options.structurePath, "structure file (.sat)")->required();
    convert->add_option("LOAD", options.loadPath, "load file (.sat)")->required();
    convert->add_option("--json", options.jsonPath, "write a report of the conversion as JSON; - for stdout")
        ->type_name("FILE")
        ->check(
            [](const std::string& path) { return path.empty() ? std::string("the name is empty") : std::string(); });
    convert->add_flag("-q,--quiet", options.isQuiet, "no summary and no progress, only messages of what went wrong");
    convert->footer(kConvertFooter);
}

}  // namespace

std::optional<CConvertOptions> ParseCommandLine(int argc, const char* const* argv, EExitCode& exitCode)
{
    CConvertOptions options;
    CLI::App app("Converts a building model exported by SATWE to a keyword-section text model file", "satwecvt");
    app.set_version_flag("--version", "satwecvt " SATWECVT_VERSION);
    app.require_subcommand(1);
    app.footer(kProgramFooter);
    AddConvertCommand(app, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& stopped) {
        const bool isAnswered = app.exit(stopped, std::cout, std::cerr) == 0;  // help and version
        const bool isPrinted = std::cout.flush().good();
        exitCode = !isAnswered ? EExitCode::WrongUsage : isPrinted ? EExitCode::Written : EExitCode::OutputIncomplete;
        return std::nullopt;
    }
    return options;
}

}  // namespace satwecvt
