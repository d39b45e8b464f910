#include "cli/CommandLine.h"
#include "cli/ConvertCommand.h"

#include <csignal>
#include <exception>
#include <iostream>

#ifdef _WIN32
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
        if (const auto options = ParseCommandLine(argc, argv, exitCode)) {
            exitCode = RunConvert(*options);
        }
    } catch (const std::exception& failure) {
        std::cerr << "satwecvt: " << failure.what() << "\n";
    }
    return static_cast<int>(exitCode);
}
