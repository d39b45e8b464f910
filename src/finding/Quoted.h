#pragma once

#include <string>
#include <string_view>

namespace satwecvt {

/// A text of the input between quotation marks, as a terminal can bear it: what is no printable ASCII is told by its
/// byte, and a long text is cut.
std::string Quoted(std::string_view text);

/// Appends a byte by its number, "\x1B".
void AppendByteNumber(std::string& text, char c);

}  // namespace satwecvt
