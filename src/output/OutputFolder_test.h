// A folder of this machine that every test gets for itself, and what stands in its files.
#pragma once

#include "output/SafeFiles.h"
#include "satwecvt/FileSystem.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <string_view>

namespace satwecvt {

using StringSet = std::set<std::string>;

/// Writes an output as a conversion does; returns whether all of it was taken.
inline bool WriteOutput(CFileSystem& files, const std::string& path, std::string_view bytes)
{
    const int file = files.OpenForWriting(path.c_str());
    if (file < 0) {
        return false;
    }
    bool isTaken = true;
    while (isTaken && !bytes.empty()) {
        const std::ptrdiff_t count = files.Write(file, bytes.data(), bytes.size());
        isTaken = count > 0;
        bytes.remove_prefix(isTaken ? static_cast<std::size_t>(count) : 0);
    }
    const bool isClosed = files.Close(file) == 0;
    return isTaken && isClosed;
}

/// Reads a file to its end.
inline std::string ReadFile(CFileSystem& files, const std::string& path)
{
    const int file = files.OpenForReading(path.c_str());
    EXPECT_GE(file, 0) << path;
    std::string bytes;
    char buffer[7];
    std::ptrdiff_t count = 0;
    while ((count = files.Read(file, buffer, sizeof buffer)) > 0) {
        bytes.append(buffer, static_cast<std::size_t>(count));
    }
    EXPECT_EQ(0, count);
    EXPECT_EQ(0, files.Close(file));
    return bytes;
}

class COutputFolder : public testing::Test {
protected:
    COutputFolder()
    {
        std::random_device random;
        do {
            folder = std::filesystem::temp_directory_path() / ("satwecvt-output-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(folder));
    }
    ~COutputFolder() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::string Path(const std::string& name) const { return (folder / name).string(); }

    void Create(const std::string& name, std::string_view bytes) const
    {
        std::ofstream(folder / name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }

    std::string BytesOf(const std::string& name) const
    {
        std::ifstream in(folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    /// The names of all files here.
    StringSet Names() const
    {
        StringSet names;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }

    /// Writes "model" to a path, and keeps it.
    void WriteAndKeep(const std::string& path)
    {
        CSafeFiles files(system);
        ASSERT_TRUE(WriteOutput(files, path, "model")) << std::strerror(errno);
        ASSERT_NO_THROW(files.Keep());
    }

    /// The path and the cause of the failure with which `Keep` ends; empty when it does not fail.
    static std::string KeepFailure(CSafeFiles& files)
    {
        try {
            files.Keep();
            return "";
        } catch (const CFileError& failure) {
            return failure.what();
        }
    }

    /// Opens a path for writing: it has to fail as it does without us.
    void ExpectRefused(const std::string& path, int expectedCause)
    {
        CSafeFiles files(system);
        errno = 0;
        EXPECT_EQ(-1, files.OpenForWriting(path.c_str())) << path;
        EXPECT_EQ(expectedCause, errno) << path;
        errno = 0;
        EXPECT_EQ(-1, system.OpenForWriting(path.c_str())) << path;
        EXPECT_EQ(expectedCause, errno) << path;
    }

    CFileSystem& system = CFileSystem::System();
    std::filesystem::path folder;
};

}  // namespace satwecvt
