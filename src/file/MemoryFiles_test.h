// Files that exist in memory alone: a map of byte strings under their paths. For tests that convert very often, and for
// those in which a system call has to fail at a given moment: derive from it, and fail before or instead of the call.
//
// A path is a key: two spellings are two files, and folders do not exist. Descriptors are never used twice, so that a
// second close of one is seen.
#pragma once

#include "satwecvt/FileSystem.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

class CMemoryFiles : public CFileSystem {
public:
    /// May be changed while nothing is open.
    std::map<std::string, std::string> files;

    /// The most bytes that one read or write takes.
    std::size_t mostBytesPerCall = std::numeric_limits<std::size_t>::max();

    int OpenForReading(const char* path) override
    {
        const auto found = files.find(path);
        if (found == files.end()) {
            errno = ENOENT;
            return -1;
        }
        return Add(path, EUse::Reading, found->second);
    }

    int OpenForWriting(const char* path) override
    {
        std::string& bytes = files[path];
        bytes.clear();
        return Add(path, EUse::Writing, bytes);
    }

    std::ptrdiff_t Read(int file, char* buffer, std::size_t size) override
    {
        CDescriptor* const from = Find(file, EUse::Reading);
        if (from == nullptr) {
            return -1;
        }
        const std::size_t count = from->bytes->copy(buffer, std::min(size, mostBytesPerCall), from->position);
        from->position += count;
        return static_cast<std::ptrdiff_t>(count);
    }

    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override
    {
        CDescriptor* const to = Find(file, EUse::Writing);
        if (to == nullptr) {
            return -1;
        }
        const std::size_t count = std::min(size, mostBytesPerCall);
        to->bytes->append(bytes, count);
        return static_cast<std::ptrdiff_t>(count);
    }

    int Close(int file) noexcept override
    {
        if (!IsOpen(file)) {
            ++strayCloses;
            errno = EBADF;
            return -1;
        }
        descriptors[static_cast<std::size_t>(file)].use = EUse::None;
        return 0;
    }

    bool IsSameFile(const char* a, const char* b) override { return files.contains(a) && std::string_view(a) == b; }

    /// A file's bytes, or none when there is no such file.
    std::optional<std::string> Bytes(const std::string& path) const
    {
        const auto found = files.find(path);
        return found != files.end() ? std::optional(found->second) : std::nullopt;
    }

    /// How many descriptors were not closed just once: those that are open, and closes of what was not.
    std::ptrdiff_t OpenCount() const noexcept
    {
        return strayCloses + std::count_if(descriptors.begin(), descriptors.end(),
                                           [](const CDescriptor& each) { return each.use != EUse::None; });
    }

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

    int Add(const char* path, EUse use, std::string& bytes)
    {
        descriptors.push_back({path, use, &bytes, 0});
        return static_cast<int>(descriptors.size() - 1);
    }

    bool IsOpen(int file) const noexcept
    {
        const auto index = static_cast<std::size_t>(file);
        return file >= 0 && index < descriptors.size() && descriptors[index].use != EUse::None;
    }

    CDescriptor* Find(int file, EUse use) noexcept
    {
        if (!IsOpen(file) || descriptors[static_cast<std::size_t>(file)].use != use) {
            errno = EBADF;
            return nullptr;
        }
        return &descriptors[static_cast<std::size_t>(file)];
    }

    std::vector<CDescriptor> descriptors;
    std::ptrdiff_t strayCloses = 0;
};

}  // namespace satwecvt
