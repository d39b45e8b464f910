#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace satwecvt {

/// A new empty folder that is the working folder for as long as the object lives, and is gone after that.
class CTemporaryFolder {
public:
    CTemporaryFolder();
    ~CTemporaryFolder();
    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;

    const std::filesystem::path& Path() const noexcept { return path; }

private:
    std::filesystem::path path;
    std::filesystem::path previous;
};

/// Writes a file's bytes as they stand.
void WriteBytes(const std::filesystem::path& file, std::string_view bytes);

/// A file's bytes, or none when there is no such file.
std::optional<std::string> ReadBytes(const std::filesystem::path& file);

/// The first line in which two texts differ, with its number, for a failure's message; empty when they are equal.
std::string FirstDifference(std::string_view expected, std::string_view actual);

}  // namespace satwecvt
