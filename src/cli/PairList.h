// A list of pairs, one a line: the structure file, then the load file. A tab parts the two; where a line has no tab,
// blanks do. Blanks around a name do not belong to it. Empty lines and lines that start with # are passed over, a byte
// order mark and CR LF are allowed. Any other line is wrong usage, told with its number.
#pragma once

#include "cli/InputPairs.h"

#include <string>

namespace satwecvt {

/// Reads a list from a file, or from stdin when `path` is "-". It need not be a regular file.
CInputPairs PairsOfList(const std::string& path);

}  // namespace satwecvt
