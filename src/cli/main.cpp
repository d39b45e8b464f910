#include "cli/CheckCommand.h"
#include "cli/CommandLine.h"
#include "cli/ConvertCommand.h"

#include <csignal>
#include <exception>
#include <iostream>
#include <variant>

#ifdef _WIN32
#include "ui/console/Utf8Console_win32.h"
#endif

int main(int argc, char** argv)
{
    using namespace satwecvt;
#ifdef SIGXFSZ
    // A file that may not grow, and a pipe that nobody reads any more, are failed writes, and told like others.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
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
        } else {
            exitCode = std::get<EExitCode>(command);
        }
    } catch (const std::exception& failure) {
        std::cerr << "satwecvt: " << failure.what() << "\n";
    }
    return static_cast<int>(exitCode);
}
