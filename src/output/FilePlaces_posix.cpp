#include "output/FilePlaces.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <system_error>

#ifdef __linux__
#include <linux/limits.h>
#include <sys/xattr.h>
#endif

namespace satwecvt {

namespace {

constexpr mode_t kPermissions = 07777;

/// Where open files of processes look like links: what such a link says need not be the way to the file.
bool IsOfProcesses(const struct stat& link)
{
    struct stat processes {};
    return ::stat("/proc", &processes) == 0 && processes.st_dev == link.st_dev;
}

COutputPlace Split(const std::string& path)
{
    const std::size_t nameStart = path.rfind('/') + 1;  // 0 when there is none
    return {path.substr(0, nameStart), path.substr(nameStart)};
}

/// Gives a file the group of another, and its owner where the system lets us.
bool TakeOwner(int file, const struct stat& own, const struct stat& old)
{
    constexpr auto kAsItIs = static_cast<uid_t>(-1);
    return (own.st_uid == old.st_uid && own.st_gid == old.st_gid) || ::fchown(file, old.st_uid, old.st_gid) == 0 ||
           own.st_gid == old.st_gid || ::fchown(file, kAsItIs, old.st_gid) == 0;
}

/// Gives a file the access list of another, or takes away the one that its folder gave it.
bool TakeAccessList(int file, int old)
{
#ifdef __linux__
    constexpr const char* kAccessList = "system.posix_acl_access";
    char list[XATTR_SIZE_MAX];
    const ssize_t size = ::fgetxattr(old, kAccessList, list, sizeof list);
    if (size > 0) {
        return ::fsetxattr(file, kAccessList, list, static_cast<std::size_t>(size), 0) == 0;
    }
    return ::fremovexattr(file, kAccessList) == 0 || errno == ENODATA || errno == ENOTSUP;
#else
    static_cast<void>(file);
    static_cast<void>(old);
    return true;
#endif
}

/// In a folder like /tmp a file gives way to nobody but its owner.
bool GivesWay(const struct stat& own, const struct stat& old, const std::string& folder)
{
    struct stat status {};
    return own.st_uid == old.st_uid ||
           (::stat(folder.empty() ? "." : folder.c_str(), &status) == 0 && (status.st_mode & S_ISVTX) == 0);
}

/// Makes a new file one that can replace an old one without a difference; false when that cannot be. A file that is
/// mounted at its place, as containers have them, lies on another device than its folder.
bool BecomeLike(int file, int old, const std::string& folder)
{
    struct stat own {};
    struct stat like {};
    if (::fstat(file, &own) != 0 || ::fstat(old, &like) != 0 || own.st_dev != like.st_dev) {
        return false;
    }
    return TakeOwner(file, own, like) && TakeAccessList(file, old) &&
           ((own.st_mode & kPermissions) == (like.st_mode & kPermissions) ||
            ::fchmod(file, like.st_mode & kPermissions) == 0) &&
           ::fstat(file, &own) == 0 && GivesWay(own, like, folder);
}

/// Whether a path can be opened with these flags, which have no effect on a file. Without O_NONBLOCK a pipe that has
/// just come in its place would hold us up.
int TryOpening(const char* path, int flags)
{
    constexpr mode_t kForUsAlone = 0600;
    const int file = ::open(path, flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, kForUsAlone);
    return file < 0 ? -1 : ::close(file);
}

int OpenNew(const std::string& path, mode_t permissions)
{
    return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permissions);
}

/// Creates a file like an open one. Nobody else may read it before it is known who may.
int CreateLike(const std::string& temporary, int old, const std::string& folder)
{
    constexpr mode_t kForUsAlone = 0600;
    const int file = OpenNew(temporary, kForUsAlone);
    if (file < 0 || BecomeLike(file, old, folder)) {
        return file;
    }
    ::close(file);
    ::unlink(temporary.c_str());
    errno = EPERM;
    return -1;
}

}  // namespace

std::optional<COutputPlace> CFilePlaces::PlaceOf(const char* path)
{
    constexpr int kMostLinks = 40;  // what Linux follows itself
    std::string way = path;
    for (int links = 0; links <= kMostLinks; ++links) {
        struct stat status {};
        if (::lstat(way.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) {
            COutputPlace place = Split(way);
            const bool isFolder = place.name.empty() || place.name == "." || place.name == "..";
            return isFolder ? std::nullopt : std::optional(place);
        }
        std::error_code failed;
        const std::string target = std::filesystem::read_symlink(way, failed).string();
        if (failed || IsOfProcesses(status)) {
            return std::nullopt;
        }
        way = target.starts_with('/') ? target : Split(way).folder.append(target);
    }
    return std::nullopt;
}

bool CFilePlaces::AreOneName(const std::string& a, const std::string& b)
{
    return a == b;
}

std::string CFilePlaces::NameKey(const std::string& name)
{
    return name;
}

std::string CFilePlaces::FolderKey(const std::string& folder)
{
    struct stat status {};
    if (::stat(folder.empty() ? "." : folder.c_str(), &status) != 0) {
        return folder;
    }
    return std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino);
}

int CFilePlaces::Create(const std::string& temporary, const COutputPlace& place)
{
    constexpr mode_t kReadWriteForAll = 0666;  // less the user's mask
    const std::string path = place.Path();
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return errno == ENOENT ? OpenNew(temporary, kReadWriteForAll) : -1;
    }
    if (!S_ISREG(status.st_mode)) {
        errno = EPERM;
        return -1;
    }
    // A file that nobody may write could be replaced all the same. Without O_NONBLOCK a pipe that has just come in its
    // place would hold us up.
    const int old = ::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (old < 0) {
        return -1;
    }
    const int file = CreateLike(temporary, old, place.folder);
    const int cause = errno;
    ::close(old);
    errno = cause;
    return file;
}

int CFilePlaces::TryWriting(const char* path)
{
    struct stat status {};
    if (::stat(path, &status) == 0) {
        const bool mayTakeNotice = S_ISFIFO(status.st_mode) || S_ISCHR(status.st_mode) || S_ISBLK(status.st_mode);
        return mayTakeNotice ? ::faccessat(AT_FDCWD, path, W_OK, AT_EACCESS) : TryOpening(path, O_WRONLY);
    }
    if (errno != ENOENT && errno != ENOTDIR) {
        return -1;
    }
    const std::optional<COutputPlace> place = PlaceOf(path);
    if (!place) {
        return TryOpening(path, O_WRONLY | O_CREAT);  // names a folder that is not there: no file is created
    }
    return ::faccessat(AT_FDCWD, place->folder.empty() ? "." : place->folder.c_str(), W_OK | X_OK, AT_EACCESS);
}

int CFilePlaces::Sync(int file) noexcept
{
    int result = 0;
    do {
        result = ::fsync(file);
    } while (result != 0 && errno == EINTR);
    const bool hasNoDisk = result != 0 && (errno == EINVAL || errno == ENOTSUP);
    return hasNoDisk ? 0 : result;
}

int CFilePlaces::Replace(const std::string& temporary, const COutputPlace& place)
{
    return std::rename(temporary.c_str(), place.Path().c_str());
}

int CFilePlaces::Remove(const std::string& temporary) noexcept
{
    return ::unlink(temporary.c_str());
}

}  // namespace satwecvt
