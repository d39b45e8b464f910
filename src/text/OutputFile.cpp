#include "text/OutputFile.h"

#include <cerrno>
#include <cstring>

namespace satwecvt {

namespace {

constexpr std::size_t kBufferSize = std::size_t{64} * 1024;

}  // namespace

COutputFile::COutputFile(CFileSystem& fileSystem) : system(fileSystem) {}

COutputFile::~COutputFile()
{
    Abandon();
}

int COutputFile::Open(const std::string& filePath)
{
    buffer.resize(kBufferSize);
    path = filePath;
    file = system.OpenForWriting(filePath.c_str());
    if (file < 0) {
        cause = std::strerror(errno);
        return 0;
    }
    return 1;
}

void COutputFile::Refuse(const std::string& filePath, std::string_view why)
{
    path = filePath;
    cause = why;
}

void COutputFile::MakeRoom()
{
    if (!IsOpen()) {
        throw Error();
    }
    Flush();
}

void COutputFile::Flush()
{
    std::size_t written = 0;
    while (written < used) {
        const std::ptrdiff_t count = system.Write(file, buffer.data() + written, used - written);
        if (count <= 0) {
            errno = count == 0 ? ENOSPC : errno;  // a device that takes nothing more
            Fail();
        }
        written += static_cast<std::size_t>(count);
    }
    used = 0;
}

void COutputFile::Close()
{
    if (!IsOpen()) {
        return;
    }
    Flush();
    const int closing = file;
    file = -1;
    if (system.Close(closing) != 0) {
        Fail();
    }
}

void COutputFile::Abandon() noexcept
{
    if (IsOpen()) {
        system.Close(file);  // the file is given up: nothing more can be lost
    }
    file = -1;
    used = 0;
}

void COutputFile::Fail()
{
    cause = std::strerror(errno);
    throw Error();
}

}  // namespace satwecvt
