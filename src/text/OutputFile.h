// An output file: bytes go out as they are given, gathered into large writes. A file that could not be opened fails at
// the first byte written to it.
#pragma once

#include "satwecvt/FileSystem.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

class COutputFile {
public:
    explicit COutputFile(CFileSystem& system);
    ~COutputFile();
    COutputFile(const COutputFile&) = delete;
    COutputFile& operator=(const COutputFile&) = delete;

    /// Creates the file, or empties the one that is there. Returns 1, or 0 when that cannot be; `Error` tells why.
    [[nodiscard]] int Open(const std::string& filePath);

    /// Makes this file one that could not be opened, for a cause of our own.
    void Refuse(const std::string& filePath, std::string_view why);

    bool IsOpen() const noexcept { return file >= 0; }

    /// The failed open.
    CFileError Error() const { return CFileError(path, cause); }

    /// Room for `size` more bytes, at most 32 KiB; `Commit` takes those that were written there. Throws CFileError when
    /// the file is not open or what was gathered cannot be written.
    char* Reserve(std::size_t size)
    {
        if (!IsOpen() || buffer.size() - used < size) {
            MakeRoom();
        }
        return buffer.data() + used;
    }
    void Commit(const char* end) noexcept { used = static_cast<std::size_t>(end - buffer.data()); }

    /// Writes what was gathered and closes the file; throws CFileError when that fails. Does nothing when not open.
    void Close();

    /// Closes the file without writing anything more.
    void Abandon() noexcept;

private:
    void MakeRoom();
    void Flush();
    [[noreturn]] void Fail();

    CFileSystem& system;
    std::vector<char> buffer;
    std::size_t used = 0;
    int file = -1;
    std::string path;
    std::string cause;
};

}  // namespace satwecvt
