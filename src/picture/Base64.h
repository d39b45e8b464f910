// Bytes as text of letters, digits, + and /, with = at the end: four characters for three bytes, on one line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace satwecvt {

inline constexpr std::size_t kBase64Bytes = 3;
inline constexpr std::size_t kBase64Characters = 4;  // for them

constexpr std::size_t Base64Length(std::size_t bytes)
{
    return (bytes + kBase64Bytes - 1) / kBase64Bytes * kBase64Characters;
}

void AppendBase64(std::string& text, std::string_view bytes);

}  // namespace satwecvt
