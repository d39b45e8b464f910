// What is told of the program and its commands besides their options: in --help and in the man page.
#pragma once

#include "commands/ExitCode.h"

#include <string_view>
#include <vector>

namespace satwecvt {

struct CExitCodeText {
    EExitCode code;
    std::string_view text;
};

struct CCommandText {
    std::vector<std::string_view> paragraphs;
    std::vector<std::string_view> examples;  // lines for a shell
    std::string_view exitCodesNote;          // empty: none
    std::vector<CExitCodeText> exitCodes;    // none: those of the commands
};

/// Of the command with this name; of the program itself for every other name.
CCommandText TextOf(std::string_view command);

}  // namespace satwecvt
