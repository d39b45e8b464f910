// The files of a view: each of its own, none of them an input. They take their places together; without `Keep`, no file
// and no folder has changed.
#pragma once

#include "output/SafeFiles.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace satwecvt {

/// Folders that are made for outputs. Those that did not get any are removed again.
class CMadeFolders {
public:
    CMadeFolders() = default;
    ~CMadeFolders();
    CMadeFolders(const CMadeFolders&) = delete;
    CMadeFolders& operator=(const CMadeFolders&) = delete;

    /// Makes a folder, and the folders above it, where they do not exist. Throws CFileError.
    void Make(const std::string& folder);

private:
    std::vector<std::string> made;  // a folder behind those above it
};

class CViewOutputs {
public:
    /// The inputs that no output may be.
    explicit CViewOutputs(std::vector<std::string> inputs) : taken(std::move(inputs)) {}

    /// Throws CFileError.
    void MakeFolder(const std::string& folder) { folders.Make(folder); }

    /// The page. Throws CFileError.
    void WritePage(const std::string& path, std::string_view text);

    /// A plan, whose name no other plan has. Throws CFileError.
    void WritePlan(const std::string& path, std::string_view text);

    /// Throws CFileError.
    void Keep() { files.Keep(); }

private:
    void Write(const std::string& path, std::string_view text);

    CMadeFolders folders;  // outlives the temporary files in them
    CSafeFiles files{CFileSystem::System()};
    std::vector<std::string> taken;
};

}  // namespace satwecvt
