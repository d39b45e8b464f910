#include "Finding.h"

#include <cstdio>
#include <cstdlib>

namespace satwecvt {

void Fail(std::string_view what)
{
    std::fprintf(stderr, "finding: %.*s\n", static_cast<int>(what.size()), what.data());
    std::fflush(stderr);
    std::abort();
}

std::string Printable(std::string_view text)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string printable;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= 0x20 && byte < 0x7F) {
            printable += character;
        } else {
            printable += "\\x";
            printable += kDigits[byte / 16];
            printable += kDigits[byte % 16];
        }
    }
    return printable;
}

}  // namespace satwecvt
