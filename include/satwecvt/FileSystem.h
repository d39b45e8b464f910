// The system calls under every file of a conversion, in one place, so that a test can make each of them fail.
// Paths are narrow strings, as the system takes them. Failures are -1 and errno, as with the system calls themselves.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace satwecvt {

class CFileSystem {
public:
    virtual ~CFileSystem() = default;

    /// Opens a regular file for reading; anything else (a folder, a device, a pipe) is refused, since an input is read
    /// twice and a read may not block. Returns a descriptor, or -1.
    virtual int OpenForReading(const char* path);

    /// Opens a file for writing, created when missing and emptied when present. Returns a descriptor, or -1.
    virtual int OpenForWriting(const char* path);

    /// Reads up to `size` bytes; returns how many, 0 at the end of the file, or -1.
    virtual std::ptrdiff_t Read(int file, char* buffer, std::size_t size);

    /// Writes up to `size` bytes; returns how many, or -1.
    virtual std::ptrdiff_t Write(int file, const char* bytes, std::size_t size);

    /// Returns 0, or -1 when what was written could not be kept. The descriptor is gone in both cases.
    virtual int Close(int file) noexcept;

    /// Whether two paths name one existing file, through links and spellings. Where the system does not say, they do,
    /// better an output too few than an input lost; on Windows, where whole drives do not say, if the paths are equal.
    virtual bool IsSameFile(const char* a, const char* b);

    /// The files of this machine.
    static CFileSystem& System();
};

/// A file that could not be opened, read or written: the path, and the system's word for the cause.
class CFileError : public std::runtime_error {
public:
    CFileError(const std::string& failedPath, const std::string& failedCause)
        : std::runtime_error(failedPath + ": " + failedCause),
          path(failedPath),
          cause(failedCause)
    {}

    const std::string& Path() const noexcept { return path; }
    const std::string& Cause() const noexcept { return cause; }

private:
    std::string path;
    std::string cause;
};

}  // namespace satwecvt
