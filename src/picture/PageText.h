// The page's own program as text, in two parts between which the data stand. Both are made from page/ by the build.
#pragma once

#include <span>
#include <string_view>

namespace satwecvt {

/// In pieces, since some compilers take no long text.
std::span<const std::string_view> PageTextBeforePicture() noexcept;
std::span<const std::string_view> PageTextBehindPicture() noexcept;

}  // namespace satwecvt
