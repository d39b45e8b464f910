#include "satwecvt/FileSystem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>

namespace satwecvt {

namespace {

/// Whether a path that has no status for this cause cannot be opened either.
bool LeadsNowhere(int cause)
{
    return cause == ENOENT || cause == ENOTDIR || cause == EACCES || cause == ELOOP || cause == ENAMETOOLONG;
}

}  // namespace

int CFileSystem::OpenForReading(const char* path)
{
    // Without O_NONBLOCK the open of a pipe that nobody writes to would never come back.
    const int file = ::open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (file < 0) {
        return -1;
    }
    struct stat status {};
    const int failure = ::fstat(file, &status) == 0 ? 0 : errno;
    if (failure == 0 && S_ISREG(status.st_mode)) {
        return file;
    }
    ::close(file);
    errno = failure != 0 ? failure : S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
    return -1;
}

int CFileSystem::OpenForWriting(const char* path)
{
    constexpr mode_t kReadWriteForAll = 0666;  // less the user's mask
    return ::open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kReadWriteForAll);
}

std::ptrdiff_t CFileSystem::Read(int file, char* buffer, std::size_t size)
{
    std::ptrdiff_t count = 0;
    do {
        count = ::read(file, buffer, size);
    } while (count < 0 && errno == EINTR);
    return count;
}

std::ptrdiff_t CFileSystem::Write(int file, const char* bytes, std::size_t size)
{
    std::ptrdiff_t count = 0;
    do {
        count = ::write(file, bytes, size);
    } while (count < 0 && errno == EINTR);
    return count;
}

int CFileSystem::Close(int file) noexcept
{
    // After EINTR the descriptor is gone on this system; a second close might hit somebody else's.
    return ::close(file) == 0 || errno == EINTR ? 0 : -1;
}

bool CFileSystem::IsSameFile(const char* a, const char* b)
{
    struct stat statusA {};
    struct stat statusB {};
    if (::stat(a, &statusA) != 0 || ::stat(b, &statusB) != 0) {
        return !LeadsNowhere(errno);
    }
    return statusA.st_dev == statusB.st_dev && statusA.st_ino == statusB.st_ino;
}

CFileSystem& CFileSystem::System()
{
    static CFileSystem system;
    return system;
}

}  // namespace satwecvt
