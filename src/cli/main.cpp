#include "cli/BatchCommand.h"
#include "cli/CheckCommand.h"
#include "cli/CommandLine.h"
#include "cli/ConvertCommand.h"
#include "cli/ViewCommand.h"

#include <csignal>
#include <exception>
#include <iostream>
#include <variant>

#ifdef _WIN32
#include "ui/console/ClosingConsole_win32.h"
#include "ui/console/Utf8Console_win32.h"
#endif

int main(int argc, char** argv)
{
    using namespace satwecvt;
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is a failed write, and told like others
#endif
#ifdef _WIN32
    const CUtf8Console console;
#endif
    EExitCode exitCode = EExitCode::NotConverted;
    try {
        const CCommand command = ParseCommandLine(argc, argv);
        if (const auto* convert = std::get_if<CConvertOptions>(&command)) {
            exitCode = RunConvert(*convert);
        } else if (const auto* check = std::get_if<CCheckOptions>(&command)) {
            exitCode = RunCheck(*check);
#ifdef SATWECVT_VIEW
        } else if (const auto* view = std::get_if<CViewOptions>(&command)) {
            exitCode = RunView(*view);
#endif
        } else if (const auto* batch = std::get_if<CBatchOptions>(&command)) {
            exitCode = RunBatch(*batch);
        } else {
            exitCode = std::get<EExitCode>(command);
        }
    } catch (const std::exception& failure) {
        std::cerr << "satwecvt: " << failure.what() << "\n";
    }
#ifdef _WIN32
    if (IsStartedFromDesktop(argc, argv)) {
        WaitForReaderOfOwnConsole();
    }
#endif
    return static_cast<int>(exitCode);
}
