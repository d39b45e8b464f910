#include "manual/ShellText.h"

namespace satwecvt {

std::string ShellQuoted(std::string_view text)
{
    std::string quoted = "'";
    for (const char character : text) {
        if (character == '\'') {
            quoted += "'\\''";
        } else {
            quoted += character;
        }
    }
    return quoted + "'";
}

std::string FishQuoted(std::string_view text)
{
    return "'" + Escaped(text, "\\'") + "'";
}

std::string Escaped(std::string_view text, std::string_view characters)
{
    std::string escaped;
    for (const char character : text) {
        if (characters.find(character) != std::string_view::npos) {
            escaped += '\\';
        }
        escaped += character;
    }
    return escaped;
}

}  // namespace satwecvt
