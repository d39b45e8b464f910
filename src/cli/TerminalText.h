#pragma once

#include <string>
#include <string_view>

namespace satwecvt {

/// A text with names of files in it as a terminal can bear it: control characters, which a name may hold, are told by
/// their bytes ("\x1B"). Letters of all languages stay.
std::string TerminalText(std::string_view text);

}  // namespace satwecvt
