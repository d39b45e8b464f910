#include "manual/RoffText.h"

namespace satwecvt {

namespace {

/// What stands for a character; null: itself. Most are told apart from their typographic forms.
const char* EscapeOf(char character)
{
    switch (character) {
    case '\\':
        return "\\e";
    case '-':
        return "\\-";
    case '\'':
        return "\\(aq";
    case '"':
        return "\\(dq";
    case '`':
        return "\\(ga";
    case '^':
        return "\\(ha";
    case '~':
        return "\\(ti";
    default:
        return nullptr;
    }
}

}  // namespace

std::string RoffText(std::string_view text)
{
    std::string roff = text.starts_with('.') ? "\\&" : "";
    for (const char character : text) {
        if (const char* const escape = EscapeOf(character)) {
            roff += escape;
        } else {
            roff += character;
        }
    }
    return roff;
}

std::string RoffBold(std::string_view text)
{
    return "\\fB" + RoffText(text) + "\\fR";
}

std::string RoffItalic(std::string_view text)
{
    return "\\fI" + RoffText(text) + "\\fR";
}

}  // namespace satwecvt
