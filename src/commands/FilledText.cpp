#include "commands/FilledText.h"

#include <algorithm>

namespace satwecvt {

std::string FilledText(std::string_view text, std::size_t column, std::size_t indent)
{
    constexpr std::size_t kWidth = 100;
    std::string filled;
    bool isLineBegun = false;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(text.size(), word.size() + 1));
        if (word.empty()) {
            continue;
        }
        if (isLineBegun && column + 1 + word.size() > kWidth) {
            filled.append("\n").append(indent, ' ');
            column = indent;
        } else if (isLineBegun) {
            filled += ' ';
            ++column;
        }
        filled += word;
        column += word.size();
        isLineBegun = true;
    }
    return filled;
}

}  // namespace satwecvt
