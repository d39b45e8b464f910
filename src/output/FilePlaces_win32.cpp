#include "output/FilePlaces.h"

#include <fcntl.h>
#include <io.h>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace satwecvt {

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// A handle that closes itself.
class CHandle {
public:
    CHandle(const std::string& path, DWORD access)
        : handle(::CreateFileA(path.c_str(), access, kShareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS,
                               nullptr))
    {}
    ~CHandle()
    {
        if (IsOpen()) {
            ::CloseHandle(handle);
        }
    }
    CHandle(const CHandle&) = delete;
    CHandle& operator=(const CHandle&) = delete;

    bool IsOpen() const noexcept { return handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const noexcept { return handle; }

private:
    HANDLE handle;
};

/// A text that the system writes into a buffer, whose size it tells when it is too small; empty when it fails.
template <class Fill>
std::string SystemText(Fill fill)
{
    std::string text(MAX_PATH, '\0');
    DWORD length = fill(text.data(), static_cast<DWORD>(text.size()));
    if (length > text.size()) {
        text.resize(length);
        length = fill(text.data(), length);
    }
    text.resize(length <= text.size() ? length : 0);
    return text;
}

/// A path as the system completes it, or as it is when that fails: it may be too long.
std::string FullPath(const char* path)
{
    const std::string full =
        SystemText([&](char* text, DWORD size) { return ::GetFullPathNameA(path, size, text, nullptr); });
    return full.empty() ? path : full;
}

/// Where an existing link leads in the end; empty when it leads nowhere.
std::string LinkTarget(const std::string& link)
{
    const CHandle target(link, 0);
    if (!target.IsOpen()) {
        return "";
    }
    return SystemText([&](char* text, DWORD size) {
        return ::GetFinalPathNameByHandleA(target.Get(), text, size, FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
    });
}

/// The number that the run-time library has for the system's last error.
int LastErrorNumber()
{
    switch (::GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return ENOENT;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
        return EACCES;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return ENOSPC;
    case ERROR_WRITE_PROTECT:
        return EROFS;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return EEXIST;
    case ERROR_INVALID_NAME:
    case ERROR_FILENAME_EXCED_RANGE:
        return ENAMETOOLONG;
    case ERROR_TOO_MANY_OPEN_FILES:
        return EMFILE;
    default:
        return EIO;
    }
}

/// Whether a path leads to a device or a named pipe, which may notice that it is opened.
bool IsDevice(const std::string& path)
{
    return FullPath(path.c_str()).starts_with("\\\\.\\");
}

/// Whether an existing file can be replaced: a regular one, which nobody else has opened in a way that forbids it. With
/// the attributes the system refuses to empty a file, or a new one would not have its like.
bool IsReplaceable(const std::string& path)
{
    const CHandle file(path, GENERIC_WRITE | DELETE);
    const DWORD attributes = ::GetFileAttributesA(path.c_str());
    constexpr DWORD kOther = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN |
                             FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ENCRYPTED;
    return file.IsOpen() && ::GetFileType(file.Get()) == FILE_TYPE_DISK && attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & kOther) == 0;
}

/// Gives a file the permissions of another. Drives that know none have nothing to give.
bool TakePermissions(const std::string& file, const std::string& old)
{
    DWORD size = 0;
    if (!::GetFileSecurityA(old.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size) &&
        ::GetLastError() != ERROR_INSUFFICIENT_BUFFER) {
        return ::GetLastError() == ERROR_INVALID_FUNCTION || ::GetLastError() == ERROR_NOT_SUPPORTED;
    }
    std::string permissions(size, '\0');
    return ::GetFileSecurityA(old.c_str(), DACL_SECURITY_INFORMATION, permissions.data(), size, &size) &&
           ::SetFileSecurityA(file.c_str(), DACL_SECURITY_INFORMATION, permissions.data());
}

int OpenNew(const std::string& path)
{
    const HANDLE handle =
        ::CreateFileA(path.c_str(), GENERIC_WRITE, kShareAll, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        errno = LastErrorNumber();
        return -1;
    }
    const int file = ::_open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_WRONLY | _O_BINARY | _O_NOINHERIT);
    if (file < 0) {
        ::CloseHandle(handle);
        ::_unlink(path.c_str());
        errno = EMFILE;
    }
    return file;
}

/// Whether an existing file can be emptied, which the system refuses for some attributes. Returns 0, or -1.
int TryEmptying(const std::string& path)
{
    constexpr DWORD kRefused = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    const DWORD attributes = ::GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & kRefused) == 0) {
        return 0;
    }
    errno = EACCES;
    return -1;
}

/// Whether a folder takes a new file, as far as its permissions tell. Returns 0, or -1.
int TryAddingTo(const std::string& path)
{
    const CHandle folder(path, FILE_ADD_FILE);
    if (folder.IsOpen()) {
        return 0;
    }
    errno = LastErrorNumber();
    return -1;
}

bool IsMissing(const std::string& path)
{
    const CHandle file(path, 0);
    return !file.IsOpen() && LastErrorNumber() == ENOENT;
}

}  // namespace

std::optional<COutputPlace> CFilePlaces::PlaceOf(const char* path)
{
    std::string way = FullPath(path);
    const DWORD attributes = ::GetFileAttributesA(way.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        way = LinkTarget(way);
    }
    const std::size_t nameStart = way.find_last_of("\\/") + 1;  // 0 when there is none
    COutputPlace place{way.substr(0, nameStart), way.substr(nameStart)};
    const bool hasStream = place.name.find(':') != std::string::npos;  // a part of a file
    return place.name.empty() || hasStream ? std::nullopt : std::optional(place);
}

bool CFilePlaces::AreOneName(const std::string& a, const std::string& b)
{
    return ::lstrcmpiA(a.c_str(), b.c_str()) == 0;
}

std::string CFilePlaces::NameKey(const std::string& name)
{
    std::string key = name;
    ::CharLowerBuffA(key.data(), static_cast<DWORD>(key.size()));
    return key;
}

std::string CFilePlaces::FolderKey(const std::string& folder)
{
    BY_HANDLE_FILE_INFORMATION identity{};
    const CHandle file(folder.empty() ? "." : folder, 0);
    if (!file.IsOpen() || !::GetFileInformationByHandle(file.Get(), &identity)) {
        return NameKey(FullPath(folder.c_str()));  // some network drives have folders without an identity
    }
    return std::to_string(identity.dwVolumeSerialNumber) + ":" + std::to_string(identity.nFileIndexHigh) + ":" +
           std::to_string(identity.nFileIndexLow);
}

int CFilePlaces::Create(const std::string& temporary, const COutputPlace& place)
{
    const std::string path = place.Path();
    if (IsDevice(path)) {
        errno = EPERM;
        return -1;
    }
    if (IsMissing(path)) {
        return OpenNew(temporary);
    }
    if (!IsReplaceable(path)) {
        errno = EPERM;
        return -1;
    }
    const int file = OpenNew(temporary);
    if (file < 0 || TakePermissions(temporary, path)) {
        return file;
    }
    ::_close(file);
    ::_unlink(temporary.c_str());
    errno = EPERM;
    return -1;
}

int CFilePlaces::TryWriting(const char* path)
{
    if (IsDevice(path)) {
        return 0;
    }
    const int file = ::_open(path, _O_WRONLY | _O_BINARY | _O_NOINHERIT);
    if (file >= 0) {
        ::_close(file);
        return TryEmptying(path);
    }
    const std::string_view name = path;
    if (_doserrno != ERROR_FILE_NOT_FOUND || name.ends_with('\\') || name.ends_with('/')) {
        return -1;
    }
    const std::optional<COutputPlace> place = PlaceOf(path);
    return place ? TryAddingTo(place->folder) : 0;  // without a place, a part of a file or what a link leads to
}

int CFilePlaces::Sync(int file) noexcept
{
    return ::_commit(file);
}

int CFilePlaces::Replace(const std::string& temporary, const COutputPlace& place)
{
    if (::MoveFileExA(temporary.c_str(), place.Path().c_str(), MOVEFILE_REPLACE_EXISTING)) {
        return 0;
    }
    errno = LastErrorNumber();
    return -1;
}

int CFilePlaces::Remove(const std::string& temporary) noexcept
{
    return ::_unlink(temporary.c_str());
}

}  // namespace satwecvt
