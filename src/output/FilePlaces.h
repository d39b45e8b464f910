// The system calls with which a new file takes the place of another, in one class, so that a test can make each of them
// fail. Failures are -1 and errno, as with CFileSystem.
#pragma once

#include "satwecvt/FileSystem.h"

#include <optional>
#include <string>

namespace satwecvt {

/// Where a file lies, or would lie if there were one.
struct COutputPlace {
    std::string folder;  // with the separator at its end; empty for the working folder
    std::string name;

    std::string Path() const { return folder + name; }
};

class CFilePlaces {
public:
    virtual ~CFilePlaces() = default;

    /// The place that a path leads to, through all links, also through one that leads to no file yet. None when the
    /// path names no place in a folder: it ends in a separator, its links form a circle, or a link stands for an open
    /// file of a process, as /dev/stdout may. On Windows, none for a link that leads to no file.
    virtual std::optional<COutputPlace> PlaceOf(const char* path);

    /// Whether two names of one folder are one.
    virtual bool AreOneName(const std::string& a, const std::string& b);

    /// Creates a file that may take a place later, and opens it for writing; it must not exist. Where a file is to be
    /// replaced, it has to be a regular one that may be written, and the new one gets its permissions, its group and,
    /// where the system lets it, its owner. Returns a descriptor, or -1: EPERM also for a file that cannot be replaced
    /// by one like it.
    virtual int Create(const std::string& temporary, const COutputPlace& place);

    /// Whether a file may be written where it lies, or created there, as far as that can be told without an effect: of
    /// a pipe and of a device only the permissions are looked at. Returns 0, or -1 when it certainly may not.
    virtual int TryWriting(const char* path);

    /// Brings what was written to the disk itself, as far as there is one.
    virtual int Sync(int file) noexcept;

    /// Lets a file take its place. What lay there is gone in the same moment.
    virtual int Replace(const std::string& temporary, const COutputPlace& place);

    virtual int Remove(const std::string& temporary) noexcept;

    /// Whether a path leads to a place, where there need not be a file. `files` tell which folders are one.
    bool LeadsTo(const char* path, const COutputPlace& place, CFileSystem& files);

    /// A text that tells a folder from all others, whatever path leads to it; empty is the working folder. What is no
    /// folder is known by its path alone.
    static std::string FolderKey(const std::string& folder);

    /// A text that tells a file, or the place of one that does not exist yet, from all others in the same way.
    std::string KeyOf(const std::string& path);

    /// The places of this machine.
    static CFilePlaces& System();

private:
    /// Equal for names of one folder that are one.
    static std::string NameKey(const std::string& name);
};

}  // namespace satwecvt
