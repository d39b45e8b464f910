// Text for people, with line breaks where a terminal's line ends.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace satwecvt {

/// The words of a text in lines of at most 100 columns, each after the first behind `indent` blanks. `column` is where
/// the first one starts. A word that is longer than a line has one of its own. No line break follows the last line.
std::string FilledText(std::string_view text, std::size_t column, std::size_t indent);

}  // namespace satwecvt
