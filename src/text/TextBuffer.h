#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace satwecvt {

/// A text that grows in memory, as a target of `WriteLine`.
class CTextBuffer {
public:
    std::string_view Text() const noexcept { return std::string_view(text).substr(0, used); }

    /// Room for `size` more bytes; `Commit` takes those that were written there.
    char* Reserve(std::size_t size)
    {
        if (text.size() - used < size) {
            text.resize(2 * text.size() + size);
        }
        return text.data() + used;
    }
    void Commit(const char* end) noexcept { used = static_cast<std::size_t>(end - text.data()); }

private:
    std::string text;
    std::size_t used = 0;
};

}  // namespace satwecvt
