// The man page of the program, made from its table of commands and options.
#pragma once

#include "commands/CommandEntry.h"

#include <string>

namespace satwecvt {

/// In man(7), for section 1.
std::string ManPage(const CProgramEntry& entry);

}  // namespace satwecvt
