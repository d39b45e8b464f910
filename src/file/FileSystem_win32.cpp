#include "satwecvt/FileSystem.h"

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <algorithm>
#include <cerrno>
#include <string>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace satwecvt {

namespace {

/// The identity of an existing file; false, with the system's last error, when there is none to be had.
bool Identify(const char* path, BY_HANDLE_FILE_INFORMATION& identity)
{
    const DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file = ::CreateFileA(path, 0, shareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    const bool isKnown = ::GetFileInformationByHandle(file, &identity) != 0;
    const DWORD cause = ::GetLastError();
    ::CloseHandle(file);
    ::SetLastError(cause);
    return isKnown;
}

/// A path as the system completes it, or as it is when that fails: it may be too long.
std::string FullPath(const char* path)
{
    char full[MAX_PATH] = "";
    const DWORD length = ::GetFullPathNameA(path, MAX_PATH, full, nullptr);
    return length > 0 && length < MAX_PATH ? std::string(full, length) : std::string(path);
}

/// The run-time library counts bytes in 32 bits.
unsigned int Chunk(std::size_t size)
{
    constexpr std::size_t kLargest = 1U << 30U;
    return static_cast<unsigned int>((std::min)(size, kLargest));
}

}  // namespace

int CFileSystem::OpenForReading(const char* path)
{
    const int file = ::_open(path, _O_RDONLY | _O_BINARY | _O_NOINHERIT | _O_SEQUENTIAL);
    if (file < 0) {
        return -1;
    }
    struct _stat64 status {};
    if (::_fstat64(file, &status) == 0 && (status.st_mode & _S_IFMT) == _S_IFREG) {
        return file;
    }
    ::_close(file);
    errno = EINVAL;
    return -1;
}

int CFileSystem::OpenForWriting(const char* path)
{
    return ::_open(path, _O_WRONLY | _O_CREAT | _O_TRUNC | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}

std::ptrdiff_t CFileSystem::Read(int file, char* buffer, std::size_t size)
{
    return ::_read(file, buffer, Chunk(size));
}

std::ptrdiff_t CFileSystem::Write(int file, const char* bytes, std::size_t size)
{
    return ::_write(file, bytes, Chunk(size));
}

int CFileSystem::Close(int file) noexcept
{
    return ::_close(file);
}

bool CFileSystem::IsSameFile(const char* a, const char* b)
{
    BY_HANDLE_FILE_INFORMATION identityA{};
    BY_HANDLE_FILE_INFORMATION identityB{};
    if (Identify(a, identityA) && Identify(b, identityB)) {
        return identityA.dwVolumeSerialNumber == identityB.dwVolumeSerialNumber &&
               identityA.nFileIndexHigh == identityB.nFileIndexHigh &&
               identityA.nFileIndexLow == identityB.nFileIndexLow;
    }
    // Some network drives and devices have files without an identity, which are known by their paths alone.
    const DWORD cause = ::GetLastError();
    const bool isMissing = cause == ERROR_FILE_NOT_FOUND || cause == ERROR_PATH_NOT_FOUND;
    return !isMissing && ::lstrcmpiA(FullPath(a).c_str(), FullPath(b).c_str()) == 0;
}

CFileSystem& CFileSystem::System()
{
    static CFileSystem system;
    return system;
}

}  // namespace satwecvt
