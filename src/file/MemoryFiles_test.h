// Files that exist in memory alone, for the unit tests of every room that reads or writes files.
#pragma once

#include "file/FileSystem.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

class CMemoryFiles : public CFileSystem {
public:
    std::map<std::string, std::string> files;  // bytes by path
    int filesOpen = 0;

    int OpenForReading(const char* path) override
    {
        if (!files.contains(path)) {
            errno = ENOENT;
            return -1;
        }
        return Open(path);
    }

    int OpenForWriting(const char* path) override
    {
        files[path].clear();
        return Open(path);
    }

    std::ptrdiff_t Read(int file, char* buffer, std::size_t size) override
    {
        COpenFile& from = opened.at(static_cast<std::size_t>(file));
        const std::size_t count = std::min(size, from.bytes->size() - from.position);
        from.bytes->copy(buffer, count, from.position);
        from.position += count;
        return static_cast<std::ptrdiff_t>(count);
    }

    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override
    {
        opened.at(static_cast<std::size_t>(file)).bytes->append(bytes, size);
        return static_cast<std::ptrdiff_t>(size);
    }

    int Close(int /*file*/) override
    {
        --filesOpen;
        return 0;
    }

    bool IsSameFile(const char* a, const char* b) override { return std::string_view(a) == b && files.contains(a); }

private:
    struct COpenFile {
        std::string* bytes;
        std::size_t position;
    };

    int Open(const char* path)
    {
        ++filesOpen;
        opened.push_back({&files[path], 0});
        return static_cast<int>(opened.size() - 1);
    }

    std::vector<COpenFile> opened;  // by descriptor
};

}  // namespace satwecvt
