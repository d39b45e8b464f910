// Paths of the program are UTF-8 on every system. The standard library takes narrow ones for something else on Windows.
#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace satwecvt {

inline std::filesystem::path PathOf(const std::string& text)
{
    return {std::u8string(text.begin(), text.end())};
}

inline std::string TextOf(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

/// Also false where the system does not tell.
inline bool IsFile(const std::string& path)
{
    std::error_code failed;
    return std::filesystem::is_regular_file(PathOf(path), failed);
}

}  // namespace satwecvt
