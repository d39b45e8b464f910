#include "cli/CommandLine.h"

#include "cli/Report.h"
#include "commands/CommandTable.h"
#include "conversion/Utf8Path.h"
#include "finding/Quoted.h"

#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

namespace satwecvt {

namespace {

/// Whether something else stands where a command should, such as a file: two that are dropped on the program.
bool IsWithoutCommand(const std::vector<std::string>& arguments, const CLI::App& app)
{
    if (arguments.empty() || arguments.front().starts_with("-")) {
        return false;
    }
    return app.get_subcommands([&](const CLI::App* command) { return command->get_name() == arguments.front(); })
        .empty();
}

}  // namespace

CCommand ParseCommandLine(int argc, const char* const* argv)
{
    CCommandTable table;
    std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    if (IsWithoutCommand(arguments, table.app)) {
        if (!IsFile(arguments.front())) {
            PrintError(Quoted(arguments.front()) + " is neither a command nor a file; see satwecvt --help");
            return EExitCode::WrongUsage;
        }
        arguments.insert(arguments.begin(), table.convert->get_name());
    }
    std::reverse(arguments.begin(), arguments.end());  // as CLI11 wants them
    try {
        table.app.parse(std::move(arguments));
    } catch (const CLI::ParseError& stopped) {
        const bool isAnswered = table.app.exit(stopped, std::cout, std::cerr) == 0;  // help and version
        const bool isPrinted = std::cout.flush().good();
        return !isAnswered ? EExitCode::WrongUsage : isPrinted ? EExitCode::Written : EExitCode::OutputIncomplete;
    }
    if (table.batch->parsed()) {
        return table.batchOptions;
    }
    if (table.view != nullptr && table.view->parsed()) {
        return table.viewOptions;
    }
    return table.check->parsed() ? CCommand(table.checkOptions) : CCommand(table.convertOptions);
}

}  // namespace satwecvt
