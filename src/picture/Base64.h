// Bytes as text of letters, digits, + and /, with = at the end: four characters for three bytes, on one line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace satwecvt {

constexpr std::size_t Base64Length(std::size_t bytes)
{
    return (bytes + 2) / 3 * 4;
}

void AppendBase64(std::string& text, std::string_view bytes);

}  // namespace satwecvt
