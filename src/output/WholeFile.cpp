#include "output/WholeFile.h"

#include <cerrno>
#include <cstddef>
#include <cstring>

namespace satwecvt {

namespace {

/// Writes bytes to an open file; returns 0, or why they are not all there.
int WriteBytes(CFileSystem& files, int file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::ptrdiff_t count = files.Write(file, bytes.data(), bytes.size());
        if (count <= 0) {
            return count == 0 ? ENOSPC : errno;  // a device that takes nothing more
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

}  // namespace

void WriteWholeFile(CFileSystem& files, const std::string& path, std::string_view bytes)
{
    const int file = files.OpenForWriting(path.c_str());
    if (file < 0) {
        throw CFileError(path, std::strerror(errno));
    }
    const int writeFailure = WriteBytes(files, file, bytes);
    const int closeFailure = files.Close(file) == 0 ? 0 : errno;
    if (const int failure = writeFailure != 0 ? writeFailure : closeFailure; failure != 0) {
        throw CFileError(path, std::strerror(failure));
    }
}

}  // namespace satwecvt
