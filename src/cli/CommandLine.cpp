#include "cli/CommandLine.h"

#include "cli/Utf8Path.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

namespace satwecvt {

namespace {

constexpr const char* kProgramFooter =
    "\nTwo files without a command are converted.\n"
    "\nExamples:\n"
    "  satwecvt check tower.sat tower_load.sat\n"
    "  satwecvt convert tower.sat tower_load.sat\n"
    "  satwecvt batch buildings\n";

constexpr const char* kConvertFooter =
    "\nThe outputs take their places when they are whole: a conversion that fails or is cancelled leaves older ones "
    "as\n"
    "they were. A summary goes to stdout, findings, failures and progress to stderr.\n"
    "\nExamples:\n"
    "  satwecvt convert tower.sat tower_load.sat\n"
    "  satwecvt convert --strict -o out/tower.vkm --log out/tower.msg tower.sat tower_load.sat\n"
    "  satwecvt convert --json - tower.sat tower_load.sat | jq .counts\n"
    "\nExit codes:\n"
    "  0    the model text file was written\n"
    "  1    not converted: an input could not be opened or read, or its content makes no model; the message says\n"
    "       which input, and where\n"
    "  2    wrong usage\n"
    "  3    --strict: something would be lost or is doubtful; nothing was written\n"
    "  4    the model text file, the message log or the report could not be written completely\n"
    "  130  cancelled with Ctrl-C; nothing was written\n";

constexpr const char* kCheckFooter =
    "\nThe conversion runs in memory and writes nothing. The building at a glance, what became of each kind, the "
    "balance\n"
    "of the loads and the findings go to stdout.\n"
    "\nExamples:\n"
    "  satwecvt check tower.sat tower_load.sat\n"
    "  satwecvt check --strict tower.sat tower_load.sat && echo clean\n"
    "\nExit codes:\n"
    "  0    the files can be converted, with or without findings\n"
    "  1    they cannot: the message says which input, and where\n"
    "  2    wrong usage\n"
    "  3    --strict: something would be lost or is doubtful\n"
    "  4    the report could not be written completely\n"
    "  130  cancelled with Ctrl-C\n";

constexpr const char* kBatchFooter =
    "\nA pair is converted as \"convert\" does it: the model lies beside the structure file (.vkm), the log beside "
    "the\n"
    "model (.msg). What comes of it is told in one line: ok, refused (--strict), failed or cancelled; the lines stand "
    "in\n"
    "the order of the pairs. One that fails stops no other.\n"
    "\nFolders: each FOLDER, and every folder below it, that holds both files is a pair. Links to folders are not\n"
    "followed.\n"
    "\nList: one pair a line, the structure file, a tab, the load file. Where a line has no tab, blanks part the two;\n"
    "names with blanks need the tab. Empty lines and lines that start with # are passed over. Names that are not\n"
    "absolute start from the working folder.\n"
    "\nThe record has the reports of \"convert --json\", one a line, in the order of the pairs. It is written while "
    "they\n"
    "end, so whatever ends the program, the lines up to there are in it. Pairs that were not begun have none.\n"
    "\nExamples:\n"
    "  satwecvt batch buildings\n"
    "  satwecvt batch --structure tower.sat --load tower_load.sat --json-lines night.jsonl site1 site2\n"
    "  satwecvt batch --list pairs.txt --strict -j 4\n"
    "\nExit codes, the worst of all pairs; from the worst on:\n"
    "  130  cancelled with Ctrl-C: pairs that were being read are as before, and no further ones were begun\n"
    "  4    a model, a log, the record or stdout could not be written completely\n"
    "  1    a pair could not be converted, a folder not be read, or there is no pair in one\n"
    "  3    --strict: something would be lost or is doubtful; of that pair nothing was written\n"
    "  0    all models were written\n"
    "  2    wrong usage: a line of the list is no pair, or two pairs would write one file; nothing was converted\n";

std::string NameIsEmpty(const std::string& path)
{
    return path.empty() ? "the name is empty" : "";
}

template <class Options>
void AddInputs(CLI::App& command, Options& options)
{
    command.add_option("STRUCTURE", options.structurePath, "structure file (.sat)")->required();
    command.add_option("LOAD", options.loadPath, "load file (.sat)")->required();
}

template <class Options>
void AddReport(CLI::App& command, Options& options)
{
    command.add_option("--json", options.jsonPath, "write a report as JSON; - for stdout")
        ->type_name("FILE")
        ->check(NameIsEmpty);
}

CLI::App* AddConvertCommand(CLI::App& app, CConvertOptions& options)
{
    CLI::App* convert = app.add_subcommand("convert", "Convert a structure file and a load file to a model text file");
    AddInputs(*convert, options);
    convert->add_option("-o,--output", options.modelPath, "model text file; otherwise beside the structure file (.vkm)")
        ->type_name("MODEL")
        ->check(NameIsEmpty);
    convert->add_option("--log", options.logPath, "message log; otherwise satwecvt.msg in the working folder")
        ->type_name("FILE")
        ->check(NameIsEmpty);
    convert->add_flag("--strict", options.isStrict, "write nothing when something is lost or doubtful");
    AddReport(*convert, options);
    convert->add_flag("-q,--quiet", options.isQuiet, "print only what went wrong, losses and doubts among it");
    convert->footer(kConvertFooter);
    return convert;
}

CLI::App* AddCheckCommand(CLI::App& app, CCheckOptions& options)
{
    CLI::App* check = app.add_subcommand("check", "Tell what a conversion would lose, and whether the loads balance");
    AddInputs(*check, options);
    check->add_flag("--strict", options.isStrict, "end with exit code 3 when something is lost or doubtful");
    AddReport(*check, options);
    check->footer(kCheckFooter);
    return check;
}

std::string IsNoFileName(const std::string& name)
{
    const std::string separators = {'/', static_cast<char>(std::filesystem::path::preferred_separator)};
    const bool isName = !name.empty() && name.find_first_of(separators) == std::string::npos;
    return isName ? "" : "the name of a file is needed, without a folder";
}

void AddPairs(CLI::App& batch, CBatchOptions& options)
{
    CLI::Option* const folders =
        batch.add_option("FOLDER", options.folders, "folder with pairs in it or below it")->check(NameIsEmpty);
    CLI::Option* const list = batch.add_option("--list", options.listPath, "read the pairs from a list; - for stdin")
                                  ->type_name("FILE")
                                  ->check(NameIsEmpty)
                                  ->excludes(folders);
    batch.add_option("--structure", options.structureName, "name of the structure files in the folders")
        ->type_name("NAME")
        ->check(IsNoFileName)
        ->excludes(list)
        ->capture_default_str();
    batch.add_option("--load", options.loadName, "name of the load files in the folders")
        ->type_name("NAME")
        ->check(IsNoFileName)
        ->excludes(list)
        ->capture_default_str();
    batch.callback([&options] {
        if (options.folders.empty() && options.listPath.empty()) {
            throw CLI::RequiredError("FOLDER or --list");
        }
    });
}

CLI::App* AddBatchCommand(CLI::App& app, CBatchOptions& options)
{
    constexpr int kMostJobs = 1024;
    CLI::App* batch = app.add_subcommand("batch", "Convert many pairs, several at once, with a line for each");
    AddPairs(*batch, options);
    batch->add_option("-j,--jobs", options.jobs, "how many pairs at once; otherwise one for each core")
        ->type_name("N")
        ->check(CLI::Range(1, kMostJobs));
    batch->add_flag("--strict", options.isStrict, "write nothing of a pair of which something is lost or doubtful");
    batch
        ->add_option("--json-lines", options.jsonLinesPath,
                     "write a record, a line of JSON for each pair; - for stdout")
        ->type_name("FILE")
        ->check(NameIsEmpty);
    batch->footer(kBatchFooter);
    return batch;
}

/// Whether the first argument is a file where a command should stand, as it is when two files are dropped on the
/// program.
bool IsWithoutCommand(const std::vector<std::string>& arguments, const CLI::App& app)
{
    if (arguments.size() < 2 || arguments.front().starts_with("-")) {
        return false;
    }
    const auto commands =
        app.get_subcommands([&](const CLI::App* command) { return command->get_name() == arguments.front(); });
    std::error_code failed;
    return commands.empty() && std::filesystem::is_regular_file(PathOf(arguments.front()), failed);
}

}  // namespace

CCommand ParseCommandLine(int argc, const char* const* argv)
{
    CConvertOptions convertOptions;
    CCheckOptions checkOptions;
    CBatchOptions batchOptions;
    CLI::App app("Converts a building model exported by SATWE to a keyword-section text model file", "satwecvt");
    app.set_version_flag("--version", "satwecvt " SATWECVT_VERSION);
    app.require_subcommand(1);
    app.footer(kProgramFooter);
    const CLI::App* const convert = AddConvertCommand(app, convertOptions);
    const CLI::App* const check = AddCheckCommand(app, checkOptions);
    const CLI::App* const batch = AddBatchCommand(app, batchOptions);
    std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    if (IsWithoutCommand(arguments, app)) {
        arguments.insert(arguments.begin(), convert->get_name());
    }
    std::reverse(arguments.begin(), arguments.end());  // as CLI11 wants them
    try {
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError& stopped) {
        const bool isAnswered = app.exit(stopped, std::cout, std::cerr) == 0;  // help and version
        const bool isPrinted = std::cout.flush().good();
        return !isAnswered ? EExitCode::WrongUsage : isPrinted ? EExitCode::Written : EExitCode::OutputIncomplete;
    }
    if (batch->parsed()) {
        return batchOptions;
    }
    return check->parsed() ? CCommand(checkOptions) : CCommand(convertOptions);
}

}  // namespace satwecvt
