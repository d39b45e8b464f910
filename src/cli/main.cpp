#include "cli/CommandLine.h"
#include "cli/ConvertCommand.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    using namespace satwecvt;
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
