#include "commands/CommandTable.h"

#include "commands/BuildText.h"
#include "commands/CommandEntry.h"
#include "commands/HelpText.h"

#include <filesystem>
#include <string>
#include <vector>

namespace satwecvt {

namespace {

std::string NameIsEmpty(const std::string& path)
{
    return path.empty() ? "the name is empty" : "";
}

template <class Options>
void AddInputs(CLI::App& command, Options& options)
{
    command.add_option("STRUCTURE", options.structurePath, "structure file (.sat)")->required()->check(NameIsEmpty);
    command.add_option("LOAD", options.loadPath, "load file (.sat)")->required()->check(NameIsEmpty);
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
    return convert;
}

CLI::App* AddCheckCommand(CLI::App& app, CCheckOptions& options)
{
    CLI::App* check = app.add_subcommand("check", "Tell what a conversion would lose, and whether the loads balance");
    AddInputs(*check, options);
    check->add_flag("--strict", options.isStrict, "end with exit code 3 when something is lost or doubtful");
    AddReport(*check, options);
    return check;
}

#ifdef SATWECVT_VIEW
CLI::App* AddViewCommand(CLI::App& app, CViewOptions& options)
{
    CLI::App* view = app.add_subcommand("view", "Write a page that shows the building as it arrives in the model");
    AddInputs(*view, options);
    view->add_option("-o,--output", options.pagePath, "page; otherwise beside the structure file (.html)")
        ->type_name("PAGE")
        ->check(NameIsEmpty);
    view->add_option("--plans", options.plansFolder, "write a plan of each story (.svg) into a folder as well")
        ->type_name("FOLDER")
        ->check(NameIsEmpty);
    return view;
}
#endif

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
    batch->add_option("-j,--jobs", options.jobs, "how many pairs at once, at most 1024; otherwise one for each core")
        ->type_name("N")
        ->check(CLI::Range(1, kMostJobs).description(""));
    batch->add_flag("--strict", options.isStrict, "write nothing of a pair of which something is lost or doubtful");
    batch
        ->add_option("--json-lines", options.jsonLinesPath,
                     "write a record, a line of JSON for each pair; - for stdout")
        ->type_name("FILE")
        ->check(NameIsEmpty);
    return batch;
}

std::string HelpOf(const CLI::App* command, const std::string& name, CLI::AppFormatMode)
{
    std::vector<CCommandEntry> commands;
    for (const CLI::App* const below : command->get_subcommands({})) {
        commands.push_back(EntryOf(*below));
    }
    return HelpText(EntryOf(*command), commands, name);
}

}  // namespace

CCommandTable::CCommandTable()
    : app("Converts a building model exported by SATWE to a keyword-section text model file", "satwecvt")
{
    app.formatter_fn(HelpOf);
    app.set_help_flag("-h,--help", "print this help and exit");
    app.set_version_flag("--version", kBuildText, "print version, compiler and ABI, and exit");
    app.require_subcommand(1);
    convert = AddConvertCommand(app, convertOptions);
    check = AddCheckCommand(app, checkOptions);
#ifdef SATWECVT_VIEW
    view = AddViewCommand(app, viewOptions);
#endif
    batch = AddBatchCommand(app, batchOptions);
}

}  // namespace satwecvt
