#include "web/HostFiles.h"

#include "web/Host.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <iterator>
#include <new>
#include <string_view>

namespace satwecvt {

int CHostFiles::OpenForReading(const char* path)
{
    const auto* const found = std::find(std::begin(kInputPaths), std::end(kInputPaths), std::string_view(path));
    if (found == std::end(kInputPaths)) {
        errno = ENOENT;
        return -1;
    }
    const auto input = static_cast<int>(found - std::begin(kInputPaths));
    char first = '\0';
    if (satwecvt_read_input(input, 0.0, &first, 1) < 0) {
        errno = ENOENT;  // a browser does not say why
        return -1;
    }
    try {
        open.push_back({input});
    } catch (const std::bad_alloc&) {
        errno = ENOMEM;
        return -1;
    }
    return static_cast<int>(open.size() - 1);
}

std::ptrdiff_t CHostFiles::Read(int file, char* buffer, std::size_t size)
{
    COpenFile& from = open[static_cast<std::size_t>(file)];
    const std::ptrdiff_t count = satwecvt_read_input(from.input, from.offset, buffer, size);
    if (count < 0) {
        errno = EIO;
        return -1;
    }
    from.offset += static_cast<double>(count);
    return count;
}

int CHostFiles::Close(int /*file*/) noexcept
{
    return 0;
}

bool CHostFiles::IsSameFile(const char* a, const char* b)
{
    return std::string_view(a) == b;
}

int CHostFiles::OpenForWriting(const char* /*path*/)
{
    errno = EROFS;
    return -1;
}

std::ptrdiff_t CHostFiles::Write(int /*file*/, const char* /*bytes*/, std::size_t /*size*/)
{
    errno = EBADF;
    return -1;
}

}  // namespace satwecvt
