// The two input files of a page, which its user has dropped there. They have names of their own here, since two files
// of one name may come from two folders.
#pragma once

#include "satwecvt/FileSystem.h"

#include <vector>

namespace satwecvt {

inline constexpr const char* kInputPaths[] = {"<structure>", "<load>"};

class CHostFiles : public CFileSystem {
public:
    int OpenForReading(const char* path) override;
    std::ptrdiff_t Read(int file, char* buffer, std::size_t size) override;
    int Close(int file) noexcept override;
    bool IsSameFile(const char* a, const char* b) override;

    /// The page's files are read only.
    int OpenForWriting(const char* path) override;
    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override;

private:
    struct COpenFile {
        int input;
        double offset = 0.0;  // of the next byte to read
    };

    std::vector<COpenFile> open;  // none is used twice
};

}  // namespace satwecvt
