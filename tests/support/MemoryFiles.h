// Files that exist in memory alone: a map of byte strings under their paths. For tests that convert very often, and for
// those in which a system call has to fail at a given moment: derive from it, and fail before or instead of the call.
//
// A path is a key: two spellings are two files, and folders do not exist. Descriptors are never used twice, so that a
// second close of one is seen.
#pragma once

#include "file/FileSystem.h"

#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace satwecvt {

class CMemoryFiles : public CFileSystem {
public:
    /// May be changed while nothing is open.
    std::map<std::string, std::string> files;

    /// The most bytes that one read or write takes.
    std::size_t mostBytesPerCall = std::numeric_limits<std::size_t>::max();

    int OpenForReading(const char* path) override;
    int OpenForWriting(const char* path) override;
    std::ptrdiff_t Read(int file, char* buffer, std::size_t size) override;
    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override;
    int Close(int file) override;
    bool IsSameFile(const char* a, const char* b) override;

    /// A file's bytes, or none when there is no such file.
    std::optional<std::string> Bytes(const std::string& path) const;

    /// How many descriptors were opened and not closed.
    std::size_t OpenCount() const noexcept;

    /// The path that a descriptor was opened for.
    const std::string& PathOf(int file) const { return descriptors.at(static_cast<std::size_t>(file)).path; }

private:
    enum class EUse { Reading, Writing, None };

    struct CDescriptor {
        std::string path;
        EUse use;
        std::string* bytes;
        std::size_t position;
    };

    int Add(const char* path, EUse use, std::string& bytes);
    CDescriptor* Find(int file, EUse use);

    std::vector<CDescriptor> descriptors;
};

}  // namespace satwecvt
