// Text in the language of man pages, where a minus is a hyphen, a backslash starts an escape, and a full stop or an
// apostrophe at the start of a line a request.
#pragma once

#include <string>
#include <string_view>

namespace satwecvt {

/// The text as it is to be read, as a line, or within one, as an argument of a request or behind one.
std::string RoffText(std::string_view text);

std::string RoffBold(std::string_view text);
std::string RoffItalic(std::string_view text);

}  // namespace satwecvt
