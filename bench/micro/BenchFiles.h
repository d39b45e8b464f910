// Files for benches: one text to read, and a sink that takes everything written.
#pragma once

#include "satwecvt/FileSystem.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace satwecvt {

class CBenchFiles : public CFileSystem {
public:
    explicit CBenchFiles(std::string textToRead = "") : text(std::move(textToRead)) {}

    int OpenForReading(const char*) override
    {
        position = 0;
        return 0;
    }
    int OpenForWriting(const char*) override { return 0; }
    std::ptrdiff_t Read(int, char* buffer, std::size_t size) override
    {
        const std::size_t count = std::min(size, text.size() - position);
        std::memcpy(buffer, text.data() + position, count);
        position += count;
        return static_cast<std::ptrdiff_t>(count);
    }
    std::ptrdiff_t Write(int, const char*, std::size_t size) override { return static_cast<std::ptrdiff_t>(size); }
    int Close(int) noexcept override { return 0; }
    bool IsSameFile(const char*, const char*) override { return false; }

private:
    std::string text;
    std::size_t position = 0;
};

}  // namespace satwecvt
