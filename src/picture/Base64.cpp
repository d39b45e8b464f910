#include "picture/Base64.h"

#include <cstddef>
#include <cstdint>

namespace satwecvt {

namespace {

constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// Writes the four digits of three bytes.
void PutFour(char* at, std::uint32_t three)
{
    constexpr unsigned kBits = 6;
    constexpr std::uint32_t kMask = 63;
    for (std::size_t i = 4; i-- > 0; three >>= kBits) {
        at[i] = kDigits[three & kMask];
    }
}

}  // namespace

void AppendBase64(std::string& text, std::string_view bytes)
{
    const std::size_t start = text.size();
    text.resize(start + Base64Length(bytes.size()));
    char* at = text.data() + start;
    const auto byteAt = [&](std::size_t i) -> std::uint32_t {
        return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0;
    };
    for (std::size_t i = 0; i < bytes.size(); i += 3, at += 4) {
        PutFour(at, byteAt(i) << 16U | byteAt(i + 1) << 8U | byteAt(i + 2));
    }
    const std::size_t missing = (3 - bytes.size() % 3) % 3;
    text.replace(text.size() - missing, missing, missing, '=');
}

}  // namespace satwecvt
