// The files by which shells complete the program's commands, options and values, made from its table.
#pragma once

#include "commands/CommandEntry.h"

#include <string>

namespace satwecvt {

/// Needs the package bash-completion, which loads it.
std::string BashCompletion(const CProgramEntry& entry);

std::string ZshCompletion(const CProgramEntry& entry);

std::string FishCompletion(const CProgramEntry& entry);

}  // namespace satwecvt
