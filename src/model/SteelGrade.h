#pragma once

#include <cstdint>
#include <string_view>

namespace satwecvt {

/// The steel that every grade code without a name of its own stands for.
inline constexpr std::string_view kDefaultSteel = "Grade3";

/// The name of a steel grade code; empty for a code that has none. Those take `kDefaultSteel`.
constexpr std::string_view SteelNameOf(std::int32_t grade) noexcept
{
    switch (grade) {
    case 3:
        return kDefaultSteel;
    case 15:
        return "15MnV";
    case 16:
        return "16Mn";
    default:
        return {};
    }
}

}  // namespace satwecvt
