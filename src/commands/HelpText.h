// What --help prints of the program or a command.
#pragma once

#include "commands/CommandEntry.h"

#include <string>
#include <vector>

namespace satwecvt {

/// `name` is how the command is called: "satwecvt convert". The commands are those below it: of the program alone.
std::string HelpText(const CCommandEntry& command, const std::vector<CCommandEntry>& commands, const std::string& name);

/// "[OPTIONS] STRUCTURE LOAD": what may stand behind the name of a command.
std::string UsageOf(const CCommandEntry& command);

}  // namespace satwecvt
