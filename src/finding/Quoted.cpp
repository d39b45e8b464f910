#include "finding/Quoted.h"

#include <cstddef>

namespace satwecvt {

std::string Quoted(std::string_view text)
{
    constexpr std::size_t kMost = 60;
    std::string quoted = "\"";
    for (const char c : text.substr(0, kMost)) {
        if (c >= ' ' && c <= '~') {
            quoted += c;
        } else {
            AppendByteNumber(quoted, c);
        }
    }
    return quoted + (text.size() > kMost ? "...\"" : "\"");
}

void AppendByteNumber(std::string& text, char c)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    text += "\\x";
    text += kDigits[byte / 16U];
    text += kDigits[byte % 16U];
}

}  // namespace satwecvt
