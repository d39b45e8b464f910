// Converts a pair of files with the library, as a host does: library_conversion STRUCTURE LOAD. Whatever the library
// leaves of an output stays, and what the user would have been told is printed as JSON.

#include "satwecvt/ConvertSatwe.h"
#include "support/ScriptedInterface.h"

#include <nlohmann/json.hpp>

#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "library_conversion STRUCTURE LOAD\n";
        return 2;
    }
    satwecvt::CScriptedInterface user;
    satwecvt::CConvertSatwe converter(user);
    const int result = converter.Convert(argv[1], argv[2]);
    const auto replace = nlohmann::json::error_handler_t::replace;
    std::cout << nlohmann::json{{"result", result},
                                {"messages", user.messages},
                                {"fileErrors", user.fileErrors},
                                {"stages", user.stages},
                                {"total", user.totals.empty() ? 0 : user.totals.front()},
                                {"lineCounter", converter.Report().lines.read},
                                {"steps", user.steps}}
                     .dump(-1, ' ', false, replace)
              << "\n";
    return 0;
}
