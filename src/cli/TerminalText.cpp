#include "cli/TerminalText.h"

#include "finding/Quoted.h"

#include <cstddef>

namespace satwecvt {

namespace {

/// How many bytes of a text are a control character: one of ASCII, or one of the two bytes that U+0080 to U+009F have.
std::size_t ControlBytes(std::string_view text)
{
    constexpr unsigned char kDelete = 0x7F;
    constexpr unsigned char kLead = 0xC2;
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < ' ' || first == kDelete) {
        return 1;
    }
    const auto second = static_cast<unsigned char>(text.size() > 1 ? text[1] : '\0');
    return first == kLead && second >= 0x80 && second < 0xA0 ? 2 : 0;
}

}  // namespace

std::string TerminalText(std::string_view text)
{
    std::string shown;
    while (!text.empty()) {
        const std::size_t controls = ControlBytes(text);
        if (controls == 0) {
            shown += text.front();
        }
        for (std::size_t i = 0; i < controls; ++i) {
            AppendByteNumber(shown, text[i]);
        }
        text.remove_prefix(controls == 0 ? 1 : controls);
    }
    return shown;
}

}  // namespace satwecvt
